import gc
import threading
import time

import pytest

import plurexdata as p
from plurexdata import ClipCommandEvent, Guid, PlurexChannelNotifyer, PlurexClipNotifyer, PlurexServerNotifyer

Type = ClipCommandEvent.Type


def mass_update(count=1):
    return p.MassClipUpdateEventArgs(1, p.ClipCommandEventArgs.RequestSource.Network, 2, 3, Guid.empty(), 4, count)


def creation(cls=p.ClipCreationEventArgs):
    return cls(1, 0, 2, 3, Guid.empty(), 4, p.Clip(), p.Clip(), p.ClipCreationEventArgs.CreationType.Copy, 2)


def recorder(notifier, *lists):
    """Callbacks on each of `lists` (an args class, "command" or "status") recording (label, type, args)."""
    seen = []
    for label, where in lists:
        if where == "command":
            notifier.add_generic_command_callback(lambda t, a, label=label: seen.append((label, t, a)))
        elif where == "status":
            notifier.add_generic_status_callback(lambda t, a, label=label: seen.append((label, t, a)))
        else:
            notifier.add_callback(where, lambda a, label=label: seen.append((label, None, a)))
    return seen


def test_delivery_goes_to_the_specific_list_then_the_generic_one_in_order():
    notifier = PlurexClipNotifyer()
    seen = recorder(notifier, ("g1", "command"), ("c1", p.ClipCreationEventArgs), ("f1", p.ClipCreationFinishedEventArgs),
                    ("c2", p.ClipCreationEventArgs), ("g2", "command"), ("s1", "status"),
                    ("r1", p.RecordingRangesChangedEventArgs))
    base, finished, ranges = creation(), creation(p.ClipCreationFinishedEventArgs), p.RecordingRangesChangedEventArgs()
    notifier.send_event(finished)  # the one-argument form: its exact class's type, not its base's
    notifier.send_event(base, Type.ClipCreation)
    notifier.send_event(ranges)
    notifier.send_event(base, 99)  # a type without a list reaches the generic one as the plain int
    assert notifier.run_for(0)  # one command and one status event a run
    assert [(label, t) for label, t, _ in seen] == [
        ("f1", None), ("g1", Type.ClipCreationFinished), ("g2", Type.ClipCreationFinished),
        ("r1", None), ("s1", p.ClipStatusEvent.Type.RecordingRangesChanged)]
    assert all(args is (ranges if label[0] in "rs" else finished) for label, _, args in seen)
    seen.clear()
    notifier.run()
    notifier.run()
    assert [(label, t, args) for label, t, args in seen] == [
        ("c1", None, base), ("c2", None, base), ("g1", Type.ClipCreation, base), ("g2", Type.ClipCreation, base),
        ("g1", 99, base), ("g2", 99, base)]
    assert type(seen[-1][1]) is int and not notifier.run_for(0)


def test_queued_arguments_stay_alive_and_arrive_as_the_object_sent():
    class Marked(p.ServerAddedEventArgs):
        pass

    notifier = PlurexServerNotifyer()
    seen = recorder(notifier, ("added", p.ServerAddedEventArgs), ("removed", p.ServerRemovedEventArgs))
    notifier.add_generic_callback(lambda t, a: seen.append(("generic", t, a)))
    sent = Marked()
    sent.note = "kept"
    notifier.send_event(sent, p.ServerStatusEvent.Type.ServerAdded)
    del sent
    gc.collect()
    notifier.run()
    assert [(label, type(a).__name__, a.note) for label, _, a in seen] == [
        ("added", "Marked", "kept"), ("generic", "Marked", "kept")]


@pytest.mark.parametrize("post, error, message", [
    (lambda: PlurexClipNotifyer().send_event(None), ValueError, "Null EventArgs"),
    (lambda: PlurexClipNotifyer().send_event(None, Type.ClipMove), ValueError, "Null EventArgs"),
    (lambda: PlurexServerNotifyer().send_event(None, 0), ValueError, "Null EventArgs"),
    (lambda: PlurexClipNotifyer().send_event(p.ClipMoveEventArgs(1, 0, 2, 3, Guid.empty(), 4, p.Clip(), p.Clip()), Type.MassClipUpdate),
     ValueError, "EventArgs do not match the event type"),
    (lambda: PlurexChannelNotifyer().send_event(p.PlayerLoadProcessedEventArgs(),
                                                p.ChannelCommandEvent.Type.RecorderTransportProcessed),
     ValueError, "EventArgs do not match the event type"),
    (lambda: PlurexServerNotifyer().send_event(p.ServerAddedEventArgs(), p.ServerStatusEvent.Type.ServerRemoved),
     ValueError, "EventArgs do not match the event type"),
    (lambda: PlurexClipNotifyer().send_event(p.ClipUpdateEventArgs(1, 0, 2, 3, Guid.empty(), 4, p.Clip(), p.Clip())), TypeError,
     "ClipUpdateEventArgs has no event type of its own in PlurexClipNotifyer: post it with send_event(args, type)"),
    (lambda: PlurexServerNotifyer().send_event(p.PlayerLoadProcessedEventArgs()), TypeError,
     "PlayerLoadProcessedEventArgs has no event type of its own in PlurexServerNotifyer: "
     "post it with send_event(args, type)"),
    (lambda: PlurexClipNotifyer().add_callback(p.ClipCommandEventArgs, print), TypeError,
     "PlurexClipNotifyer has no callback list for <class 'plurexdata.ClipCommandEventArgs'>"),
])
def test_refusals(post, error, message):
    with pytest.raises(error) as raised:
        post()
    assert str(raised.value) == message


def test_a_callbacks_exception_reaches_the_caller_and_its_event_is_lost():
    class Refused(Exception):
        pass

    def refuse(args):
        raise Refused(f"count {args.count}")

    notifier = PlurexClipNotifyer()
    notifier.add_callback(p.MassClipUpdateEventArgs, refuse)
    seen = recorder(notifier, ("generic", "command"))
    notifier.send_event(mass_update(5))
    with pytest.raises(Refused, match=r"^count 5$"):
        notifier.run_for(1000)
    assert seen == [] and not notifier.run_for(0)


def test_run_for_times_out_and_wake_ends_a_waiting_loop_at_once():
    notifier = PlurexChannelNotifyer()
    start = time.monotonic()
    assert notifier.run_for(50) is False
    assert time.monotonic() - start >= 0.045

    notifier.wake()  # kept for the next run_for, which answers it without waiting
    start = time.monotonic()
    assert notifier.run_for(10_000) is False and time.monotonic() - start < 1

    stop, rounds = False, []

    def consume():
        while not stop:
            rounds.append(notifier.run_for(60_000))

    consumer = threading.Thread(target=consume)
    consumer.start()
    time.sleep(0.1)
    start = time.monotonic()
    stop = True
    notifier.wake()
    consumer.join(timeout=5)
    assert not consumer.is_alive() and time.monotonic() - start < 2 and rounds == [False]


def test_a_waiting_run_for_lets_other_python_threads_run():
    notifier = PlurexClipNotifyer()
    seen = recorder(notifier, ("generic", "command"))
    results = []
    consumer = threading.Thread(target=lambda: results.append(notifier.run_for(5000)))
    consumer.start()
    time.sleep(0.1)  # the consumer waits; without the GIL given up, this thread stops here for 5 s
    start = time.monotonic()
    notifier.send_event(mass_update())
    consumer.join(timeout=5)
    assert results == [True] and time.monotonic() - start < 2 and len(seen) == 1


def test_two_producer_threads_and_a_consuming_main_thread():
    notifier = PlurexClipNotifyer()
    per_thread, received, threads_seen = 200, [], set()

    def on_update(args):
        received.append((args.command_number, args.count))
        threads_seen.add(threading.get_ident())

    notifier.add_callback(p.MassClipUpdateEventArgs, on_update)

    def produce(producer):
        for i in range(per_thread):
            notifier.send_event(p.MassClipUpdateEventArgs(producer, 0, 0, 0, Guid.empty(), 0, i))

    producers = [threading.Thread(target=produce, args=(n,)) for n in (1, 2)]
    for thread in producers:
        thread.start()
    deadline = time.monotonic() + 20
    while len(received) < 2 * per_thread and time.monotonic() < deadline:
        notifier.run_for(100)
    for thread in producers:
        thread.join(timeout=5)
    assert not any(thread.is_alive() for thread in producers)
    for producer in (1, 2):  # each producer's events in the order sent
        assert [count for number, count in received if number == producer] == list(range(per_thread))
    assert len(received) == 2 * per_thread and threads_seen == {threading.get_ident()}


def test_argument_classes_read_back_what_they_were_made_with():
    failed = p.ClipDeletionFailedEventArgs(7, 2, 8, 65535, Guid.parse("0123abcd-4567-89ef-0011-223344556677"), -5,
                                           p.OperationResult.Failure, -3, p.Clip(), 1, 2, 3, True, False)
    assert (failed.command_number, failed.request_source, failed.third_value, failed.fourth_value, failed.value64,
            failed.result, failed.error_code, failed.first_byte, failed.second_byte, failed.third_byte,
            failed.first_flag, failed.second_flag, failed.reserved_word) == (
        7, p.ClipCommandEventArgs.RequestSource.Unknown, 8, 65535, -5, p.OperationResult.Failure, -3, 1, 2, 3,
        True, False, -1)
    assert str(failed.command_guid) == "0123abcd-4567-89ef-0011-223344556677"
    assert (failed.request_source_string(True), failed.request_source_string(False)) == ("UR", "Unknown")
    made = creation()
    assert made.network_type == 2 and type(made.network_type) is int  # unnamed: the plain int
    assert (made.creation_type_string, made.network_type_string) == ("Copy", "Unknown")

    angles = [p.Angle([1, 2, 3, 4, 5]), p.Angle()]
    group = p.AnglesGroupUpdateFailedEventArgs(1, Guid.empty(), 12345, 9, 3, angles[0], angles[1], angles)
    assert (group.result, group.error_code, group.value, group.first_angle, group.angles) == (
        12345, 9, 3, angles[0], tuple(angles))

    state = p.PlayerState(1, 2)
    state.name = "PGM"
    change = p.PlayerState.StatusChange.Name | p.PlayerState.StatusChange.Mode
    player = p.PlayerStateChangedEventArgs(p.ChannelGuid(p.ChannelGuid.Type.First, 3, 77), change, state)
    assert player.status_change == change and type(player.status_change) is p.PlayerState.StatusChange
    assert player.state == state
    assert player.channel_guid.channel_index == 3 and player.time > 1_600_000_000 * 10**9
    assert p.ServerAddedEventArgs().time == p.StatusEventArgs.UNSET_TIME


CREATION = dict(creation_type=0, network_type=5)
FAILURE = dict(result=1, error_code=-2)
DELETION = dict(first_byte=1, second_byte=2)
TWO = ("first_clip", "second_clip")


@pytest.mark.parametrize("cls, extra, clips", [
    (p.ClipCreationEventArgs, CREATION, ("clip_before", "clip_after")),
    (p.ClipCreationFinishedEventArgs, CREATION, ("clip_before", "clip_after")),
    (p.ClipCreationFailedEventArgs, {**FAILURE, **CREATION}, ("clip_before", "clip_after")),
    (p.ClipUpdateEventArgs, {}, TWO),
    (p.ClipUpdateFinishedEventArgs, dict(flag=True), TWO),
    (p.ClipUpdateFailedEventArgs, FAILURE, TWO),
    (p.ClipMoveEventArgs, {}, TWO),
    (p.ClipMoveFinishedEventArgs, {}, TWO),
    (p.ClipMoveFailedEventArgs, FAILURE, TWO),
    (p.ClipDeletionEventArgs, DELETION, ("clip",)),
    (p.ClipDeletionFinishedEventArgs, DELETION, ("clip",)),
    (p.ClipDeletionFailedEventArgs, {**FAILURE, **DELETION, "third_byte": 3, "first_flag": 0, "second_flag": 1},
     ("clip",)),
])
def test_clip_arguments_keep_their_clips_as_given(cls, extra, clips):
    given = {}
    for name in clips:
        given[name] = p.Clip()
        given[name].name = f"{name} é"
    args = cls(command_number=1, request_source=0, third_value=2, fourth_value=3, command_guid=Guid.empty(),
               value64=4, **extra, **given)
    for name, clip in given.items():
        copy = getattr(args, name)
        assert copy == clip and copy.name == f"{name} é"
        copy.name = "changed"  # arguments are immutable: each read is a copy
        assert getattr(args, name) == clip
    for name, value in extra.items():
        assert getattr(args, name) == value


def test_while_one_thread_runs_a_notifier_the_others_may_not_run_it_or_add_callbacks():
    notifier = PlurexClipNotifyer()
    added = []
    # From its own callbacks, the running thread may add callbacks: they see the same run's events.
    notifier.add_callback(p.MassClipUpdateEventArgs, lambda a: notifier.add_generic_command_callback(
        lambda t, a: added.append(a.count)))
    consumer = threading.Thread(target=lambda: notifier.run_for(5000))
    consumer.start()
    time.sleep(0.1)
    message = "^PlurexClipNotifyer is running on another thread: add callbacks before it runs, or from its callbacks$"
    for call in (lambda: notifier.add_callback(p.MassClipUpdateEventArgs, print),
                 lambda: notifier.add_generic_status_callback(print)):
        with pytest.raises(RuntimeError, match=message):
            call()
    for call in (notifier.run, lambda: notifier.run_for(0)):
        with pytest.raises(RuntimeError, match="^PlurexClipNotifyer is already running on another thread$"):
            call()
    notifier.send_event(mass_update(7))
    consumer.join(timeout=5)
    assert not consumer.is_alive() and added == [7]
    notifier.add_generic_status_callback(print)  # free again once the run is over
