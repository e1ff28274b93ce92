// Sends, runs and callback registrations interleaved on the clip, channel and server notifiers, on one
// thread, against a model of their queues and callback lists. Callbacks may append callbacks (to
// their own list or another, the appended ones appending again), post events, throw, or be empty.
// Each Run must call what the model calls, in the same order: the front event of each queue (the
// command queue before the status one; the server notifier has one), its specific list (walked by
// index up to the size read again at each step, so an appended callback runs in the same Run) and
// then the generic list, each callback with the very object posted and, on the generic list, its
// type; a throwing or empty callback ends the Run with the event lost. A send whose arguments are not
// of the class the type's specific list receives (or derived from it) throws "EventArgs do not match
// the event type" and queues nothing; null arguments throw "Null EventArgs". The notifier holds the
// arguments exactly while the event is queued.
#include "PlurexData/data/clips/Clip.h"
#include "PlurexData/notification/PlurexChannelNotifyer.h"
#include "PlurexData/notification/PlurexClipNotifyer.h"
#include "PlurexData/notification/PlurexServerNotifyer.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <type_traits>
#include <vector>

using namespace Korv::Plurex::Notification;
using Korv::Plurex::Data::OperationResult;
using Korv::Plurex::Data::Channels::PlayerState;
using Korv::Plurex::Data::Channels::RecorderState;
using Korv::Plurex::Data::Clips::Angle;
using Korv::Plurex::Data::Clips::Clip;
using Korv::System::EventArgs;
using ChannelGuid = Korv::Plurex::Data::Channels::Guid;
using Korv::Plurex::Data::Guid;

namespace {

void Check(bool condition) {
    if (!condition) {
        std::abort();
    }
}

constexpr std::int64_t NoType = INT64_MIN;  // a call on a specific list, which gets no type
constexpr std::size_t MaxList = 200;
constexpr int MaxCallbackSends = 64;
constexpr int MaxOperations = 200;
constexpr std::uint32_t Alive = 0x600DCA11;

// The argument classes of each queue, each with its base class in the same table (-1 for the class
// SendEvent takes) and the class each type value's specific list receives.
struct Family {
    std::vector<int> parent;
    std::vector<int> row;  // by type value from 0; values past the end have no specific list
};

const Family& FamilyOf(int family) {
    static const Family families[] = {
        // Clip commands: ClipCommandEventArgs, then each started stage followed by its outcomes.
        {{-1, 0, 1, 1, 0, 4, 4, 0, 7, 7, 0, 10, 10, 0, 13, 0, 15, 0, 17, 17, 0, 20, 20, 0, 23, 23},
         {1, 2, 3, 5, 6, 8, 9, 10, 11, 12, 13, 14, 15, 16, 18, 19, 21, 22, 24, 25}},
        {{-1, 0}, {1}},              // clip status, recording ranges
        {{-1, 0, 0, 0}, {1, 2, 3}},  // channel commands
        {{-1, 0, 0}, {1, 2}},        // channel status: recorder, player
        {{-1, 0, 0, 0}, {1, 2, 3}},  // server: added, removed, disconnected
    };
    return families[family];
}

bool Derives(const Family& family, int cls, int base) {
    for (; cls >= 0; cls = family.parent[static_cast<std::size_t>(cls)]) {
        if (cls == base) {
            return true;
        }
    }
    return false;
}

int RowOf(const Family& family, std::int32_t type) {
    return type >= 0 && static_cast<std::size_t>(type) < family.row.size()
               ? family.row[static_cast<std::size_t>(type)]
               : -1;
}

template <class T, class... A>
std::shared_ptr<T> Make(const A&... a) {
    return std::make_shared<T>(a...);
}

std::shared_ptr<ClipCommandEventArgs> MakeClipCommand(int cls) {
    using S = ClipCommandEventArgs::RequestSource;
    using CT = ClipCreationEventArgs::CreationType;
    using NT = ClipCreationEventArgs::NetworkType;
    static const Clip c;
    static const Guid g = Guid::FromString("00112233-4455-6677-8899-aabbccddeeff");
    static const std::vector<Angle> angles(2);
    const OperationResult f = OperationResult::Failure;
    const std::int16_t e = -1;
    const std::uint8_t b = 1;
    const Angle a{};
    const auto n = static_cast<std::uint32_t>(cls);
    switch (cls) {
        case 0:
            return Make<ClipCommandEventArgs>(n, S::Local, 0u, std::uint16_t{0}, g, 0LL);
        case 1:
            return Make<ClipCreationEventArgs>(n, S::Local, 0u, std::uint16_t{0}, g, 0LL, c, c, CT::Make,
                                               NT::Sdti);
        case 2:
            return Make<ClipCreationFinishedEventArgs>(n, S::Local, 0u, std::uint16_t{0}, g, 0LL, c, c,
                                                       CT::Copy, NT::Drovik);
        case 3:
            return Make<ClipCreationFailedEventArgs>(n, S::Local, 0u, std::uint16_t{0}, g, 0LL, f, e, c, c,
                                                     CT::Copy, NT::Drovik);
        case 4:
            return Make<ClipUpdateEventArgs>(n, S::Network, 0u, std::uint16_t{0}, g, 0LL, c, c);
        case 5:
            return Make<ClipUpdateFinishedEventArgs>(n, S::Network, 0u, std::uint16_t{0}, g, 0LL, true, c, c);
        case 6:
            return Make<ClipUpdateFailedEventArgs>(n, S::Network, 0u, std::uint16_t{0}, g, 0LL, f, e, c, c);
        case 7:
            return Make<ClipDeletionEventArgs>(n, S::Local, 0u, std::uint16_t{0}, g, 0LL, c, b, b);
        case 8:
            return Make<ClipDeletionFinishedEventArgs>(n, S::Local, 0u, std::uint16_t{0}, g, 0LL, c, b, b);
        case 9:
            return Make<ClipDeletionFailedEventArgs>(n, S::Local, 0u, std::uint16_t{0}, g, 0LL, f, e, c, b, b,
                                                     b, true, false);
        case 10:
            return Make<ClipMoveEventArgs>(n, S::Local, 0u, std::uint16_t{0}, g, 0LL, c, c);
        case 11:
            return Make<ClipMoveFinishedEventArgs>(n, S::Local, 0u, std::uint16_t{0}, g, 0LL, c, c);
        case 12:
            return Make<ClipMoveFailedEventArgs>(n, S::Local, 0u, std::uint16_t{0}, g, 0LL, f, e, c, c);
        case 13:
            return Make<MassClipUpdateEventArgs>(n, S::Local, 0u, std::uint16_t{0}, g, 0LL, 5u);
        case 14:
            return Make<MassClipUpdateFailedEventArgs>(n, S::Local, 0u, std::uint16_t{0}, g, 0LL, f, e, 5u);
        case 15:
            return Make<MassClipDeletionEventArgs>(n, S::Local, 0u, std::uint16_t{0}, g, 0LL, 5u);
        case 16:
            return Make<MassClipDeletionFailedEventArgs>(n, S::Local, 0u, std::uint16_t{0}, g, 0LL, f, e, 5u);
        case 17:
            return Make<AnglesGroupCreationEventArgs>(n, g, 1u, a, a, angles);
        case 18:
            return Make<AnglesGroupCreationFinishedEventArgs>(n, g, 1u, a, a, angles);
        case 19:
            return Make<AnglesGroupCreationFailedEventArgs>(n, g, f, e, 1u, a, a, angles);
        case 20:
            return Make<AnglesGroupUpdateEventArgs>(n, g, 1u, a, a, angles);
        case 21:
            return Make<AnglesGroupUpdateFinishedEventArgs>(n, g, 1u, a, a, angles);
        case 22:
            return Make<AnglesGroupUpdateFailedEventArgs>(n, g, f, e, 1u, a, a, angles);
        case 23:
            return Make<AnglesGroupDeletionEventArgs>(n, g, 1u);
        case 24:
            return Make<AnglesGroupDeletionFinishedEventArgs>(n, g, 1u);
        default:
            return Make<AnglesGroupDeletionFailedEventArgs>(n, g, f, e, 1u);
    }
}

std::shared_ptr<ClipStatusEventArgs> MakeClipStatus(int cls) {
    return cls == 0 ? Make<ClipStatusEventArgs>() : Make<RecordingRangesChangedEventArgs>();
}

std::shared_ptr<ChannelCommandEventArgs> MakeChannelCommand(int cls) {
    switch (cls) {
        case 0:
            return Make<ChannelCommandEventArgs>();
        case 1:
            return Make<RecorderTransportProcessedEventArgs>();
        case 2:
            return Make<PlayerLoadProcessedEventArgs>();
        default:
            return Make<PlayerTransportProcessedEventArgs>();
    }
}

std::shared_ptr<ChannelStatusEventArgs> MakeChannelStatus(int cls) {
    static const ChannelGuid channel(ChannelGuid::Type::First, 2, 1234);
    switch (cls) {
        case 0:
            return Make<ChannelStatusEventArgs>(channel);
        case 1:
            return Make<RecorderStateChangedEventArgs>(channel, RecorderState::StatusChange::Name,
                                                       RecorderState());
        default:
            return Make<PlayerStateChangedEventArgs>(channel, PlayerState::StatusChange::Mode, PlayerState());
    }
}

std::shared_ptr<ServerStatusEventArgs> MakeServer(int cls) {
    switch (cls) {
        case 0:
            return Make<ServerStatusEventArgs>();
        case 1:
            return Make<ServerAddedEventArgs>();
        case 2:
            return Make<ServerRemovedEventArgs>();
        default:
            return Make<DisconnectedFromNetworkEventArgs>();
    }
}

enum class Action : std::uint8_t { Log, AppendOwn, AppendOther, Send, Throw };

struct Behaviour {
    Action action = Action::Log;
    int target = 0;  // AppendOther: the list
    int queue = 0;   // Send: the queue, type and class (-1: null arguments)
    std::int32_t type = 0;
    int cls = 0;
    int depth = 0;  // an appended callback behaves as its parent while this stays above 0
};

enum class Sent { Queued, Mismatch, Null };

struct Call {
    int id;
    int list;
    int serial;
    std::int64_t type;
    int sent;  // 0, or 1 + Sent for a callback that posted
    bool operator==(const Call& o) const {
        return id == o.id && list == o.list && serial == o.serial && type == o.type && sent == o.sent;
    }
};

enum class Outcome { Done, Failed, Empty };

// What the library and the model both do: a world calls callbacks, which act on the same world.
class World {
public:
    explicit World(std::size_t lists) : sizes_(lists, 0) {}
    virtual ~World() = default;

    std::vector<Call> log;

    int Register(int list, const std::optional<Behaviour>& behaviour) {
        ++sizes_[static_cast<std::size_t>(list)];
        const int id = nextId_++;
        Push(list, id, behaviour);
        return id;
    }

    Sent Post(int queue, std::int32_t type, int cls) {
        const int serial = cls < 0 ? -1 : nextSerial_++;
        return Send(queue, type, cls, serial);
    }

    // A callback's part: log the call, then act.
    void Called(int id, int list, const Behaviour& b, int serial, std::int64_t type) {
        log.push_back(Call{id, list, serial, type, 0});
        const std::size_t at = log.size() - 1;
        switch (b.action) {
            case Action::Log:
                break;
            case Action::AppendOwn:
            case Action::AppendOther: {
                const int target = b.action == Action::AppendOwn ? list : b.target;
                Behaviour child = b;
                child.depth = b.depth - 1;
                if (b.depth <= 0) {
                    child.action = Action::Log;
                }
                if (sizes_[static_cast<std::size_t>(target)] < MaxList) {
                    Register(target, child);
                }
                break;
            }
            case Action::Send:
                if (callbackSends_ < MaxCallbackSends) {
                    ++callbackSends_;
                    log[at].sent = 1 + static_cast<int>(Post(b.queue, b.type, b.cls));
                }
                break;
            case Action::Throw:
                throw std::runtime_error("callback failed");
        }
    }

protected:
    virtual void Push(int list, int id, const std::optional<Behaviour>& behaviour) = 0;
    virtual Sent Send(int queue, std::int32_t type, int cls, int serial) = 0;

private:
    std::vector<std::size_t> sizes_;
    int nextId_ = 0;
    int nextSerial_ = 0;
    int callbackSends_ = 0;
};

// The shape of one notifier: its queues (each with its family of classes), and for each queue the
// specific lists by type value and the generic list.
struct Shape {
    std::vector<int> families;
    std::vector<std::vector<int>> specific;  // per queue, the list of each type value with one
    std::vector<int> generic;
    std::size_t lists;
};

const Shape& ShapeOf(int notifier) {
    static const Shape shapes[] = {
        {{0, 1},
         {{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19}, {20}},
         {21, 22},
         23},
        {{2, 3}, {{0, 1, 2}, {3, 4}}, {5, 6}, 7},
        {{4}, {{0, 1, 2}}, {3}, 4},
    };
    return shapes[notifier];
}

int SpecificList(const Shape& shape, int queue, std::int32_t type) {
    const std::vector<int>& lists = shape.specific[static_cast<std::size_t>(queue)];
    return type >= 0 && static_cast<std::size_t>(type) < lists.size() ? lists[static_cast<std::size_t>(type)]
                                                                      : -1;
}

Sent Expected(const Shape& shape, int queue, std::int32_t type, int cls) {
    if (cls < 0) {
        return Sent::Null;
    }
    const Family& family = FamilyOf(shape.families[static_cast<std::size_t>(queue)]);
    const int row = RowOf(family, type);
    return row < 0 || Derives(family, cls, row) ? Sent::Queued : Sent::Mismatch;
}

class Model : public World {
public:
    explicit Model(int notifier) : World(ShapeOf(notifier).lists), shape_(ShapeOf(notifier)) {
        queues_.resize(shape_.families.size());
        lists_.resize(shape_.lists);
    }

    // What a Run does, by the rules.
    Outcome Run() {
        try {
            for (std::size_t q = 0; q < queues_.size(); ++q) {
                if (queues_[q].empty()) {
                    continue;
                }
                const Event event = queues_[q].front();
                queues_[q].pop_front();
                queued.erase(event.serial);
                const int specific = SpecificList(shape_, static_cast<int>(q), event.type);
                if (specific >= 0) {
                    Walk(specific, event.serial, NoType);
                }
                Walk(shape_.generic[q], event.serial, event.type);
            }
        } catch (const std::runtime_error&) {
            return Outcome::Failed;
        } catch (const std::bad_function_call&) {
            return Outcome::Empty;
        }
        return Outcome::Done;
    }

    bool Idle() const {
        for (const auto& queue : queues_) {
            if (!queue.empty()) {
                return false;
            }
        }
        return true;
    }

    std::set<int> queued;  // the serials of the events in the queues

private:
    struct Event {
        int serial;
        std::int32_t type;
    };
    struct Entry {
        int id;
        std::optional<Behaviour> behaviour;  // none: an empty callable
    };

    void Walk(int list, int serial, std::int64_t type) {
        const std::vector<Entry>& entries = lists_[static_cast<std::size_t>(list)];
        for (std::size_t i = 0; i < entries.size(); ++i) {
            const Entry entry = entries[i];
            if (!entry.behaviour) {
                throw std::bad_function_call();
            }
            Called(entry.id, list, *entry.behaviour, serial, type);
        }
    }

    void Push(int list, int id, const std::optional<Behaviour>& behaviour) override {
        lists_[static_cast<std::size_t>(list)].push_back(Entry{id, behaviour});
    }

    Sent Send(int queue, std::int32_t type, int cls, int serial) override {
        const Sent sent = Expected(shape_, queue, type, cls);
        if (sent == Sent::Queued) {
            queues_[static_cast<std::size_t>(queue)].push_back(Event{serial, type});
            queued.insert(serial);
        }
        return sent;
    }

    const Shape& shape_;
    std::vector<std::deque<Event>> queues_;
    std::vector<std::vector<Entry>> lists_;
};

// The library's side: real notifiers whose callbacks report to this world.
template <class Notifier>
class Library : public World {
public:
    explicit Library(int notifier) : World(ShapeOf(notifier).lists) {}

    Outcome Run() {
        try {
            notifier_.Run();
        } catch (const std::runtime_error&) {
            return Outcome::Failed;
        } catch (const std::bad_function_call&) {
            return Outcome::Empty;
        }
        return Outcome::Done;
    }

    // The notifier holds an event's arguments exactly while the model has it queued.
    void CheckHeld(const std::set<int>& queued) {
        for (auto it = posted_.begin(); it != posted_.end();) {
            const bool held = queued.count(it->serial) != 0;
            Check(it->args.expired() != held);
            it = held ? it + 1 : posted_.erase(it);
        }
    }

    Notifier notifier_;

private:
    struct Posted {
        int serial;
        std::weak_ptr<const EventArgs> args;
        const EventArgs* address;
    };

    int SerialOf(const EventArgs* args) const {
        for (const Posted& p : posted_) {
            if (p.address == args && !p.args.expired()) {
                return p.serial;
            }
        }
        return -2;
    }

    // A callback's state, kept here so that the callable itself is one pointer, stored inside the
    // std::function: an append that moves the list's storage then moves the running callable too,
    // and it reads its capture again after acting.
    struct Hook {
        Library* world;
        int id;
        int list;
        Behaviour behaviour;
        std::uint32_t alive;
    };

    static void Call(const Hook* hook, const EventArgs& args, std::int64_t type) {
        hook->world->Called(hook->id, hook->list, hook->behaviour, hook->world->SerialOf(&args), type);
    }

    template <class Args>
    static void Add(std::vector<std::function<void(const Args&)>>& list, const Hook* hook) {
        if (hook == nullptr) {
            list.push_back(nullptr);
            return;
        }
        list.push_back([hook](const Args& args) {
            Call(hook, args, NoType);
            Check(hook->alive == Alive);
        });
    }

    template <class Type, class Args>
    static void Add(std::vector<std::function<void(Type, const Args&)>>& list, const Hook* hook) {
        if (hook == nullptr) {
            list.push_back(nullptr);
            return;
        }
        list.push_back([hook](Type type, const Args& args) {
            Call(hook, args, static_cast<std::int32_t>(type));
            Check(hook->alive == Alive);
        });
    }

    template <class... Lists>
    static void AddAt(int index, const Hook* hook, Lists&... lists) {
        int i = 0;
        ((i++ == index ? Add(lists, hook) : void()), ...);
    }

    void Push(int list, int id, const std::optional<Behaviour>& behaviour) override {
        const Hook* hook = nullptr;
        if (behaviour) {
            hook = &hooks_.emplace_back(Hook{this, id, list, *behaviour, Alive});
        }
        Notifier& n = notifier_;
        if constexpr (std::is_same_v<Notifier, PlurexClipNotifyer>) {
            AddAt(list, hook, n.clipCreationCallbacks, n.clipCreationFinishedCallbacks,
                  n.clipCreationFailedCallbacks, n.clipUpdateFinishedCallbacks, n.clipUpdateFailedCallbacks,
                  n.clipDeletionFinishedCallbacks, n.clipDeletionFailedCallbacks, n.clipMoveCallbacks,
                  n.clipMoveFinishedCallbacks, n.clipMoveFailedCallbacks, n.massClipUpdateCallbacks,
                  n.massClipUpdateFailedCallbacks, n.massClipDeletionCallbacks,
                  n.massClipDeletionFailedCallbacks, n.anglesGroupCreationFinishedCallbacks,
                  n.anglesGroupCreationFailedCallbacks, n.anglesGroupUpdateFinishedCallbacks,
                  n.anglesGroupUpdateFailedCallbacks, n.anglesGroupDeletionFinishedCallbacks,
                  n.anglesGroupDeletionFailedCallbacks, n.recordingRangesChangedCallbacks,
                  n.genericCommandCallbacks, n.genericStatusCallbacks);
        } else if constexpr (std::is_same_v<Notifier, PlurexChannelNotifyer>) {
            AddAt(list, hook, n.recorderTransportProcessedCallbacks, n.playerLoadProcessedCallbacks,
                  n.playerTransportProcessedCallbacks, n.recorderStateChangedCallbacks,
                  n.playerStateChangedCallbacks, n.genericCommandCallbacks, n.genericStatusCallbacks);
        } else {
            AddAt(list, hook, n.serverAddedCallbacks, n.serverRemovedCallbacks,
                  n.disconnectedFromNetworkCallbacks, n.genericCallbacks);
        }
    }

    template <class Args, class Type>
    Sent Deliver(std::shared_ptr<Args> args, Type type, int serial) {
        if (args) {
            posted_.push_back(Posted{serial, args, args.get()});
        }
        try {
            notifier_.SendEvent(std::move(args), type);
        } catch (const std::invalid_argument& e) {
            if (std::strcmp(e.what(), "Null EventArgs") == 0) {
                return Sent::Null;
            }
            Check(std::strcmp(e.what(), "EventArgs do not match the event type") == 0);
            return Sent::Mismatch;
        }
        return Sent::Queued;
    }

    Sent Send(int queue, std::int32_t type, int cls, int serial) override {
        const auto make = [cls](auto factory) { return cls < 0 ? nullptr : factory(cls); };
        if constexpr (std::is_same_v<Notifier, PlurexClipNotifyer>) {
            return queue == 0 ? Deliver(make(MakeClipCommand), ClipCommandEvent::Type(type), serial)
                              : Deliver(make(MakeClipStatus), ClipStatusEvent::Type(type), serial);
        } else if constexpr (std::is_same_v<Notifier, PlurexChannelNotifyer>) {
            return queue == 0 ? Deliver(make(MakeChannelCommand), ChannelCommandEvent::Type(type), serial)
                              : Deliver(make(MakeChannelStatus), ChannelStatusEvent::Type(type), serial);
        } else {
            return Deliver(make(MakeServer), ServerStatusEvent::Type(type), serial);
        }
    }

    std::vector<Posted> posted_;
    std::deque<Hook> hooks_;
};

class Reader {
public:
    Reader(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}
    bool Done() const { return at_ >= size_; }
    std::uint8_t Byte() { return at_ < size_ ? data_[at_++] : 0; }
    std::int32_t Type() {
        const std::uint8_t b = Byte();
        if (b < 0xF0) {
            return b % 25 - 2;
        }
        std::uint32_t raw = 0;
        for (int i = 0; i < 4; ++i) {
            raw = raw << 8 | Byte();
        }
        return static_cast<std::int32_t>(raw);
    }

private:
    const std::uint8_t* data_;
    std::size_t size_;
    std::size_t at_ = 0;
};

// One notifier and its model, driven by the same operations.
template <class Notifier>
class Pair {
public:
    explicit Pair(int notifier) : index_(notifier), library_(notifier), model_(notifier) {}

    void Send(Reader& in) {
        const Shape& shape = ShapeOf(index_);
        const int queue = in.Byte() % static_cast<int>(shape.families.size());
        const std::int32_t type = in.Type();
        const int cls = ReadClass(in, queue);
        Check(library_.Post(queue, type, cls) == model_.Post(queue, type, cls));
        library_.CheckHeld(model_.queued);
    }

    void Register(Reader& in) {
        const Shape& shape = ShapeOf(index_);
        const int list = in.Byte() % static_cast<int>(shape.lists);
        const std::uint8_t kind = in.Byte();
        std::optional<Behaviour> behaviour;
        if (kind != 0xFF) {  // 0xFF: an empty callable
            Behaviour b;
            b.action = kind < 0xF0 ? static_cast<Action>(kind % 4) : Action::Throw;
            b.target = in.Byte() % static_cast<int>(shape.lists);
            b.queue = in.Byte() % static_cast<int>(shape.families.size());
            b.type = in.Type();
            b.cls = ReadClass(in, b.queue);
            b.depth = in.Byte() % 4;
            behaviour = b;
        }
        Check(library_.Register(list, behaviour) == model_.Register(list, behaviour));
    }

    void Run() {
        library_.log.clear();
        model_.log.clear();
        const Outcome outcome = library_.Run();
        Check(outcome == model_.Run());
        Check(library_.log == model_.log);
        library_.CheckHeld(model_.queued);
    }

    // Runs until nothing is queued: every event is then delivered or lost, and released.
    void Drain() {
        for (int i = 0; i < 1000 && !model_.Idle(); ++i) {
            Run();
        }
        Check(model_.Idle());
        library_.log.clear();
        library_.Run();  // nothing left: calls nothing
        Check(library_.log.empty());
    }

private:
    int ReadClass(Reader& in, int queue) {
        const Family& family = FamilyOf(ShapeOf(index_).families[static_cast<std::size_t>(queue)]);
        const std::uint8_t b = in.Byte();
        return b == 0xFF ? -1 : b % static_cast<int>(family.parent.size());
    }

    int index_;
    Library<Notifier> library_;
    Model model_;
};

template <class Notifier>
void Operate(Pair<Notifier>& pair, std::uint8_t op, Reader& in) {
    switch (op % 8) {
        case 0:
        case 1:
        case 2:
            pair.Send(in);
            break;
        case 3:
        case 4:
            pair.Run();
            break;
        case 5:
        case 6:
            pair.Register(in);
            break;
        default:
            pair.Drain();
            break;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Reader in(data, size);
    Pair<PlurexClipNotifyer> clip(0);
    Pair<PlurexChannelNotifyer> channel(1);
    Pair<PlurexServerNotifyer> server(2);
    for (int done = 0; done < MaxOperations && !in.Done(); ++done) {
        const std::uint8_t op = in.Byte();
        switch (op / 8 % 3) {
            case 0:
                Operate(clip, op, in);
                break;
            case 1:
                Operate(channel, op, in);
                break;
            default:
                Operate(server, op, in);
                break;
        }
    }
    clip.Drain();
    channel.Drain();
    server.Drain();
    return 0;
}
