// A sequence of cue point registry operations over the four users (and some that do not exist), with
// arbitrary 64-bit positions, checked against a model kept here: per user a train list, the clip
// entries in creation order with their lists and counters, the ten delete slots, the user command, and
// the cache of saved train lists. Every result code, number, zoom, eviction at capacity, find, copy
// and cache restore must agree with the model, and every change raises exactly one event.
//
// The list order is defined by a comparison on the low 32 bits of the position, which is an order
// only while a server's positions lie within half of the 32-bit circle. The model sorts itself where
// that holds and no two marks tie; otherwise (or for ties, which only restored marks can make) it
// checks the library's list holds the same marks, in key order where one exists, and takes its order
// from there. A copy that would evict a mark from a list whose order only the library knows is not
// made.
#include "PlurexData/cuepoints/CuePointUsers.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

using namespace Korv::Plurex::BusinessObjects::CuePoints;
using Korv::Plurex::Data::Clips::KepId;
using Korv::Plurex::Data::Clips::UmId;
using Korv::Plurex::Data::Servers::ServerId;

namespace {

void Check(bool condition) {
    if (!condition) {
        std::abort();
    }
}

constexpr int Users = 4;
constexpr int TrainCapacity = 256;
constexpr int ClipCapacity = 32;
constexpr int LastNumber = 999;
constexpr int MaxOperations = 200;
constexpr std::size_t MaxTrain = 600;  // restores append without limit; keeps one input fast

// Clips as the lists tell them apart. The spaces of a unicode id are "empty" to a delete command but
// are another clip than UmId(); a text longer than eight characters is cut to the same clip.
const std::vector<UmId>& ClipTable() {
    static const std::vector<UmId> table = {UmId(),
                                            UmId("        ", true),
                                            UmId("CLIP0001"),
                                            UmId("CLIP0001", true),
                                            UmId("CLIP00012"),
                                            UmId("CLIP0002"),
                                            UmId("AB"),
                                            UmId("")};
    return table;
}
const char* const ClipTexts[] = {"        ", "CLIP0001", "CLIP00012", "CLIP0002", "AB", "", "ZZZ"};
const int Servers[] = {-1, 10, 20, 30, 2147483640};
const char Cameras[] = {'A', 'B', 0, 'Z', '\x7f', '\x80'};

const std::vector<KepId>& KepTable() {
    static const std::vector<KepId> table = {KepId(), KepId(1, 2, 3, 'B', ServerId(10)),
                                             KepId(4, 5, 6, 'C', ServerId(2147483640))};
    return table;
}

struct Mark {
    long long tc = 0;
    int server = -1;
    UmId umid;
    int number = 0;
    int pcx = 0;
    char camera = 0;
    KepId kep;
    bool train = false;
    int zoom = 0;
};

CuePoint ToCuePoint(const Mark& m) {
    CuePoint cuePoint(m.tc, m.pcx, m.camera, ServerId(m.server), m.umid, m.kep, m.train);
    cuePoint.SetNumber(m.number);
    cuePoint.SetZoom(m.zoom);
    return cuePoint;
}

Mark ToMark(const CuePoint& c) {
    Mark m;
    m.tc = c.GetTc();
    m.server = c.GetServerId().GetValue();
    m.umid = c.GetUmId();
    m.number = c.GetNumber();
    m.pcx = c.GetPcx();
    m.camera = c.GetCamera();
    m.kep = c.GetKepId();
    m.train = c.IsTrain();
    m.zoom = c.GetZoom();
    return m;
}

bool Same(const Mark& m, const CuePoint& c) {
    return c.GetTc() == m.tc && c.GetServerId().GetValue() == m.server && c.GetUmId().Equals(m.umid) &&
           c.GetNumber() == m.number && c.GetPcx() == m.pcx && c.GetCamera() == m.camera &&
           c.GetKepId().Equals(m.kep) && c.IsTrain() == m.train && c.GetZoom() == m.zoom;
}

// Every field, to compare lists as multisets; the clip as its eight stored bytes and unicode flag.
auto FullKey(const Mark& m) {
    std::uint64_t text = 0;
    std::memcpy(&text, m.umid.GetUmId(), sizeof text);
    return std::make_tuple(m.tc, m.server, text, m.umid.IsUnicode(), m.number, m.pcx, m.camera,
                           m.kep.GetPosition(), m.kep.GetCamera(), m.kep.GetServerId().GetValue(), m.train,
                           m.zoom);
}

// Positions wrap around, as they do in the lists' comparison.
long long Plus(long long tc, long long delta) {
    return static_cast<long long>(static_cast<unsigned long long>(tc) +
                                  static_cast<unsigned long long>(delta));
}

std::uint32_t Low(long long tc) {
    return static_cast<std::uint32_t>(static_cast<unsigned long long>(tc));
}

// The lists' comparison: server first, then the low halves of the positions, 32-bit wrap-around (so
// two positions exactly half the circle apart are each below the other).
int Compare(const Mark& a, const Mark& b) {
    if (a.server != b.server) {
        return a.server < b.server ? -1 : 1;
    }
    const auto low = static_cast<std::int32_t>(Low(a.tc) - Low(b.tc));
    return low < 0 ? -1 : low > 0 ? 1 : 0;
}
bool Less(const Mark& a, const Mark& b) {
    return Compare(a, b) < 0;
}
bool SameSlot(const Mark& a, const Mark& b) {
    return a.server == b.server && Low(a.tc) == Low(b.tc);
}

struct DeleteCommand {
    UmId clip;
    bool train = false;
};

bool Same(const DeleteCommand& d, const CuePointDeleteCommand& c) {
    return c.GetClipId().Equals(d.clip) && c.IsTrain() == d.train;
}

enum class Order { Known, Ties, Unknown };

struct List {
    std::vector<Mark> marks;
    int counter = 0;
    Order order = Order::Known;  // how the last sort left it, until checked against the library
    bool ties = false;           // two marks in one slot, which only a restore makes
};

// Servers in their order, as a small number for packed sort keys.
std::uint64_t ServerRank(int server) {
    return static_cast<std::uint64_t>(std::find(std::begin(Servers), std::end(Servers), server) -
                                      std::begin(Servers));
}

// Sorts where the comparison is an order on the list: per server, all low halves within an arc
// shorter than half the circle, ordered from the start of that arc.
void Sort(List& list) {
    // Scratch kept from call to call: a run of adds sorts after each one.
    static std::vector<std::uint64_t> lows;                          // server rank, low half
    static std::vector<std::pair<std::uint64_t, std::size_t>> keys;  // server rank, place in arc; index
    static std::vector<Mark> sorted;
    std::uint32_t starts[sizeof Servers / sizeof Servers[0]] = {};
    lows.clear();
    keys.clear();
    sorted.clear();
    for (const Mark& m : list.marks) {
        lows.push_back(ServerRank(m.server) << 32 | Low(m.tc));
    }
    std::sort(lows.begin(), lows.end());
    lows.erase(std::unique(lows.begin(), lows.end()), lows.end());
    list.ties = lows.size() < list.marks.size();
    for (std::size_t first = 0, end = 0; first < lows.size(); first = end) {
        const auto low = [](std::uint64_t packed) { return static_cast<std::uint32_t>(packed); };
        std::uint64_t widest = 0;  // the widest gap between neighbours: the arc starts after it
        std::uint32_t from = low(lows[first]);
        for (end = first + 1; end < lows.size() && lows[end] >> 32 == lows[first] >> 32; ++end) {
            if (low(lows[end]) - low(lows[end - 1]) > widest) {
                widest = low(lows[end]) - low(lows[end - 1]);
                from = low(lows[end]);
            }
        }
        const std::uint64_t wrap = (std::uint64_t{1} << 32) - low(lows[end - 1]) + low(lows[first]);
        if (wrap > widest) {
            widest = wrap;
            from = low(lows[first]);
        }
        if (end - first > 1 && widest <= (std::uint64_t{1} << 31)) {
            list.order = Order::Unknown;
            return;
        }
        starts[lows[first] >> 32] = from;
    }
    for (std::size_t i = 0; i < list.marks.size(); ++i) {
        const std::uint64_t rank = ServerRank(list.marks[i].server);
        keys.emplace_back(rank << 32 | (Low(list.marks[i].tc) - starts[rank]), i);
    }
    std::sort(keys.begin(), keys.end());  // the index last: stable
    list.order = Order::Known;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        sorted.push_back(list.marks[keys[i].second]);
        if (i > 0 && keys[i].first == keys[i - 1].first) {
            list.order = Order::Ties;
        }
    }
    list.marks.swap(sorted);
}

struct Entry {
    UmId umid;
    List list;
};

struct User {
    List train;
    std::vector<Entry> clips;
    std::array<DeleteCommand, 10> slots;
    std::int32_t command = 0;
};

struct Model {
    std::array<User, Users> users;
    std::map<std::int16_t, std::uint8_t> controllers;
    std::map<std::pair<std::int16_t, std::uint8_t>, std::pair<std::vector<Mark>, int>> cache;
};

bool ValidUser(std::int32_t user) {
    return user >= 0 && user < Users;
}

Entry* FindEntry(User& user, const UmId& umid) {
    for (Entry& entry : user.clips) {
        if (entry.umid.Equals(umid)) {
            return &entry;
        }
    }
    return nullptr;
}

// The list a mark belongs to; an unknown clip gets its (empty) entry, even from a search.
List& ListOf(User& user, const Mark& m) {
    if (m.train) {
        return user.train;
    }
    if (Entry* entry = FindEntry(user, m.umid)) {
        return entry->list;
    }
    user.clips.push_back(Entry{m.umid, List{}});
    return user.clips.back().list;
}

// The add rule; `unsure` is set when the outcome depends on an order the model does not know yet.
int Add(User& user, Mark& m, bool& unsure) {
    List& list = ListOf(user, m);
    const int capacity = m.train ? TrainCapacity : ClipCapacity;
    const auto equal =
        std::find_if(list.marks.begin(), list.marks.end(), [&m](const Mark& e) { return SameSlot(e, m); });
    if (equal != list.marks.end()) {
        if (list.order != Order::Known && std::count_if(list.marks.begin(), list.marks.end(),
                                                        [&m](const Mark& e) { return SameSlot(e, m); }) > 1) {
            unsure = true;
        }
        m = *equal;
        return 1;
    }
    if (list.counter >= LastNumber) {
        return 0;
    }
    m.number = ++list.counter;
    if (m.zoom == 0) {
        m.zoom = m.number;
    }
    if (static_cast<int>(list.marks.size()) + 1 > capacity) {
        unsure = unsure || list.order != Order::Known;
        list.marks.erase(list.marks.begin());
    }
    list.marks.push_back(m);
    Sort(list);
    return 2;
}

class Reader {
public:
    Reader(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    bool Done() const { return at_ >= size_; }
    std::uint64_t Bytes(int count) {
        std::uint64_t value = 0;
        for (int i = 0; i < count; ++i) {
            value = value << 8 | (at_ < size_ ? data_[at_++] : 0u);
        }
        return value;
    }
    std::uint8_t Byte() { return static_cast<std::uint8_t>(Bytes(1)); }

private:
    const std::uint8_t* data_;
    std::size_t size_;
    std::size_t at_ = 0;
};

struct Expected {
    std::int32_t user;
    CuePointDbEventType type;
    std::optional<Mark> mark;
    DeleteCommand command;
};

std::vector<CuePointDbEventArgs>& Raised() {
    static std::vector<CuePointDbEventArgs> raised;
    return raised;
}

class Run {
public:
    explicit Run(Reader& in) : in_(in) {}

    void Operations() {
        for (int done = 0; done < MaxOperations && !in_.Done(); ++done) {
            One();
            CheckEvents();
            if (ValidUser(touched_)) {
                Reconcile(touched_);
            }
        }
        for (int user = 0; user < Users; ++user) {
            Reconcile(user);
        }
    }

private:
    std::int32_t ReadUser() {
        const std::uint8_t b = in_.Byte();
        static const std::int32_t odd[] = {4, -1, INT32_MIN, INT32_MAX, 65536, 65539, -65536};
        if (b >= 0xF0) {
            return odd[b % 7];
        }
        return b % 4;
    }

    long long ReadPosition() {
        long long tc = 0;
        const std::uint8_t mode = in_.Byte() % 7;
        const auto delta = static_cast<std::int8_t>(in_.Byte());
        switch (mode) {
            case 0:
                tc = static_cast<long long>(in_.Bytes(8));
                break;
            case 1:
                tc = static_cast<std::int16_t>(in_.Bytes(2));
                break;
            case 2: {  // any high half, a low half near 0
                const std::uint64_t high = in_.Bytes(4);
                tc = static_cast<long long>(high << 32 | in_.Bytes(2));
                break;
            }
            case 3:
                tc = Plus(Recent(), delta);
                break;
            case 4:  // the same low half with another high half: the same slot, another position
                tc = Plus(Recent(), static_cast<long long>(in_.Bytes(1) << 32));
                break;
            case 5:  // around half the circle away from 0
                tc = 0x80000000LL + delta;
                break;
            default:
                tc = Plus(Recent(), 0x80000000LL + delta);
                break;
        }
        if (recent_.size() < 64) {
            recent_.push_back(tc);
        } else {
            recent_[in_.Byte() % recent_.size()] = tc;
        }
        return tc;
    }
    long long Recent() { return recent_.empty() ? 0 : recent_[in_.Byte() % recent_.size()]; }

    UmId ReadClip() { return ClipTable()[in_.Byte() % ClipTable().size()]; }
    int ReadServer() { return Servers[in_.Byte() % (sizeof Servers / sizeof Servers[0])]; }
    char ReadCamera() { return Cameras[in_.Byte() % sizeof Cameras]; }
    const KepId& ReadKep() { return KepTable()[in_.Byte() % KepTable().size()]; }

    Mark ReadMark() {
        Mark m;
        const std::uint8_t flags = in_.Byte();
        m.train = (flags & 1) != 0;
        m.tc = ReadPosition();
        m.server = ReadServer();
        m.umid = ReadClip();
        m.number = static_cast<std::int8_t>(in_.Byte());  // whatever it says, an add replaces it
        m.pcx = static_cast<std::int16_t>(in_.Bytes(2));
        m.camera = ReadCamera();
        m.kep = ReadKep();
        m.zoom = (flags & 2) != 0 ? static_cast<std::int8_t>(in_.Byte()) : 0;
        return m;
    }

    DeleteCommand ReadDelete() {
        DeleteCommand d;
        d.clip = ReadClip();
        d.train = (in_.Byte() & 1) != 0;
        return d;
    }

    void Expect(std::int32_t user, CuePointDbEventType type, std::optional<Mark> mark,
                DeleteCommand command) {
        expected_.push_back(Expected{user, type, std::move(mark), std::move(command)});
    }

    void CheckEvents() {
        std::vector<CuePointDbEventArgs>& raised = Raised();
        Check(raised.size() == expected_.size());
        for (std::size_t i = 0; i < raised.size(); ++i) {
            const CuePointDbEventArgs& got = raised[i];
            const Expected& want = expected_[i];
            Check(got.GetUser() == want.user && got.GetType() == want.type);
            // What the constructor did not receive keeps its default.
            Check(Same(want.command, got.GetDeleteCommand()));
            Check(Same(want.mark ? *want.mark : Mark(), got.GetCuePoint()));
        }
        raised.clear();
        expected_.clear();
    }

    // The library's list against the model's, which then takes the library's order where the rules
    // leave it open.
    static void Reconcile(List& model, const std::vector<CuePoint>& actual) {
        Check(model.marks.size() == actual.size());
        if (model.order == Order::Known) {
            for (std::size_t i = 0; i < actual.size(); ++i) {
                Check(Same(model.marks[i], actual[i]));
            }
            return;
        }
        std::vector<Mark> marks;
        for (const CuePoint& c : actual) {
            marks.push_back(ToMark(c));
        }
        if (model.order == Order::Ties) {
            for (std::size_t i = 0; i < marks.size(); ++i) {
                Check(SameSlot(model.marks[i], marks[i]));
            }
        }
        std::vector<decltype(FullKey(Mark()))> mine, theirs;
        for (std::size_t i = 0; i < marks.size(); ++i) {
            mine.push_back(FullKey(model.marks[i]));
            theirs.push_back(FullKey(marks[i]));
        }
        std::sort(mine.begin(), mine.end());
        std::sort(theirs.begin(), theirs.end());
        Check(mine == theirs);
        model.marks = std::move(marks);
        model.order = Order::Known;
    }

    void Reconcile(std::int32_t user) {
        User& m = model_.users[static_cast<std::size_t>(user)];
        std::vector<CuePoint> train;
        users_.GetCuePointList(user, UmId(), true, train);
        Reconcile(m.train, train);
        std::vector<CuePointClip> clips;
        users_.GetClipList(user, clips);
        Check(clips.size() == m.clips.size());
        for (std::size_t i = 0; i < clips.size(); ++i) {
            Check(clips[i].GetUmId().Equals(m.clips[i].umid) && clips[i].GetCapacity() == ClipCapacity);
            Check(*clips[i].GetIndex() == m.clips[i].list.counter);
            Reconcile(m.clips[i].list, *clips[i].GetList());
        }
    }

    // The list a mark went to, checked at once when the next add hangs on its order: one that evicts,
    // or one that meets a slot held twice.
    void ReconcileListOf(std::int32_t user, const Mark& m) {
        List& list = ListOf(model_.users[static_cast<std::size_t>(user)], m);
        const std::size_t capacity = m.train ? TrainCapacity : ClipCapacity;
        if (list.order != Order::Known && (list.marks.size() >= capacity || list.ties)) {
            std::vector<CuePoint> actual;
            users_.GetCuePointList(user, m.umid, m.train, actual);
            Reconcile(list, actual);
        }
    }

    void AddOne(std::int32_t user, Mark m) {
        CuePoint cuePoint = ToCuePoint(m);
        const std::int32_t result = users_.AddCuePoint(user, cuePoint);
        if (!ValidUser(user)) {
            Check(result == 0 && Same(m, cuePoint));
            return;
        }
        bool unsure = false;
        const int expected = Add(model_.users[static_cast<std::size_t>(user)], m, unsure);
        Check(!unsure && result == expected && Same(m, cuePoint));
        if (expected == 2) {
            Expect(user, CuePointDbEventType::CuePointAdded, m, DeleteCommand());
        }
        ReconcileListOf(user, m);
    }

    void Remove(std::int32_t user, const Mark& m) {
        const bool removed = users_.RemoveCuePoint(user, ToCuePoint(m));
        bool expected = false;
        if (ValidUser(user)) {
            User& u = model_.users[static_cast<std::size_t>(user)];
            const auto slot = [&m](const Mark& e) { return SameSlot(e, m); };
            if (m.train) {
                const auto at = std::find_if(u.train.marks.begin(), u.train.marks.end(), slot);
                expected = at != u.train.marks.end();
                if (expected) {
                    u.train.marks.erase(at);
                }
            } else if (Entry* entry = FindEntry(u, m.umid)) {
                const auto at = std::find_if(entry->list.marks.begin(), entry->list.marks.end(), slot);
                expected = at != entry->list.marks.end();
                if (expected) {
                    entry->list.marks.erase(at);
                }
                if (entry->list.marks.empty()) {  // the entry goes, and its numbering with it
                    u.clips.erase(u.clips.begin() + (entry - u.clips.data()));
                    expected = true;
                }
            }
        }
        Check(removed == expected);
        if (expected) {
            Expect(user, CuePointDbEventType::CuePointRemoved, m, DeleteCommand());
        }
    }

    enum class Search { Equal, Zoom, After, Before };

    void Find(std::int32_t user, const Mark& key, Search search) {
        const Mark untouched = ReadMark();
        CuePoint out = ToCuePoint(search == Search::Equal || search == Search::Zoom ? key : untouched);
        const CuePoint keyPoint = ToCuePoint(key);
        std::int32_t number = 0;
        bool found = false;
        switch (search) {
            case Search::Equal:
                number = users_.FindCuePoint(user, out);
                break;
            case Search::Zoom:
                number = users_.FindCuePointByZoom(user, out);
                break;
            case Search::After:
                found = users_.FindCuePointAfter(user, keyPoint, out);
                break;
            case Search::Before:
                found = users_.FindCuePointBefore(user, keyPoint, out);
                break;
        }
        const Mark* match = nullptr;
        if (ValidUser(user)) {
            const std::vector<Mark>& marks = ListOf(model_.users[static_cast<std::size_t>(user)], key).marks;
            const auto pick = [&](const auto& begin, const auto& end, auto test) {
                const auto at = std::find_if(begin, end, test);
                match = at == end ? nullptr : &*at;
            };
            switch (search) {
                case Search::Equal:
                    pick(marks.begin(), marks.end(), [&](const Mark& e) { return SameSlot(key, e); });
                    break;
                case Search::Zoom:
                    pick(marks.begin(), marks.end(),
                         [&](const Mark& e) { return e.zoom == key.zoom && e.server == key.server; });
                    break;
                case Search::After:
                    pick(marks.begin(), marks.end(),
                         [&](const Mark& e) { return Less(key, e) && e.server == key.server; });
                    break;
                case Search::Before:
                    pick(marks.rbegin(), marks.rend(),
                         [&](const Mark& e) { return Compare(key, e) > 0 && e.server == key.server; });
                    break;
            }
        }
        if (search == Search::Equal || search == Search::Zoom) {
            Check(number == (match ? match->number : 0));
            Check(Same(match ? *match : key, out));
        } else {
            Check(found == (match != nullptr));
            Check(Same(match ? *match : untouched, out));
        }
    }

    void Copy(std::int32_t user, bool train) {
        const UmId source = ReadClip();
        const UmId destination = ReadClip();
        long long in = ReadPosition();
        long long out = ReadPosition();
        if ((in_.Byte() & 1) != 0 && in > out) {
            std::swap(in, out);
        }
        const char camera = ReadCamera();
        const int server = ReadServer();
        const KepId& kep = ReadKep();
        const CuePointCopyCommand command(source, train, destination, in, out, camera, ServerId(server), kep);
        if (!ValidUser(user)) {
            users_.CopyCuePoint(user, command);
            return;
        }
        // Worked out on a copy first: a copy whose outcome hangs on an order still unknown is not made.
        User after = model_.users[static_cast<std::size_t>(user)];
        bool unsure = false;
        const auto add = [&](Mark m) {
            m.umid = destination;
            m.kep = kep;
            m.camera = camera;
            m.train = false;
            Add(after, m, unsure);
        };
        if (train) {
            std::vector<Mark> taken;
            for (const Mark& m : after.train.marks) {
                if (m.server == server && m.tc >= in && m.tc <= out) {
                    taken.push_back(m);
                }
            }
            const std::size_t skipped = taken.size() > ClipCapacity ? taken.size() - ClipCapacity : 0;
            for (std::size_t i = skipped; i < taken.size(); ++i) {
                Mark fresh;  // only position, pcx, server and zoom come from the train
                fresh.tc = taken[i].tc;
                fresh.pcx = taken[i].pcx;
                fresh.server = taken[i].server;
                fresh.zoom = taken[i].zoom;
                add(fresh);
            }
        } else if (FindEntry(after, source) != nullptr) {
            after.clips.push_back(Entry{destination, List{}});  // even when the destination has one
            for (std::size_t c = 0; c < after.clips.size(); ++c) {
                if (!after.clips[c].umid.Equals(source)) {
                    continue;
                }
                const std::vector<Mark> marks = after.clips[c].list.marks;
                for (Mark m : marks) {
                    m.server = server;  // tc, pcx, number and zoom stay; the add renumbers
                    add(m);
                }
            }
        }
        if (unsure) {
            return;
        }
        users_.CopyCuePoint(user, command);
        model_.users[static_cast<std::size_t>(user)] = std::move(after);
    }

    // The model's side of SetCuePointsIntoCache.
    void SaveIntoCache(std::int16_t user) {
        const auto attached = model_.controllers.find(user);
        if (ValidUser(user) && attached != model_.controllers.end()) {
            const User& u = model_.users[static_cast<std::size_t>(user)];
            model_.cache[{user, attached->second}] = {u.train.marks, u.train.counter};
        }
    }

    void ClearTrain(std::int32_t user) {
        List& train = model_.users[static_cast<std::size_t>(user)].train;
        train.marks.clear();
        train.counter = 0;
    }

    void One() {
        const std::uint8_t op = in_.Byte() % 19;
        const std::int32_t user = ReadUser();
        touched_ = user;
        User* u = ValidUser(user) ? &model_.users[static_cast<std::size_t>(user)] : nullptr;
        switch (op) {
            case 0:
                AddOne(user, ReadMark());
                break;
            case 1: {  // a run of adds, evenly spaced; steps past 2^31 break the order on purpose
                Mark m = ReadMark();
                const int count = 1 + in_.Byte() % 64;
                const long long step = (in_.Byte() & 1) != 0 ? static_cast<long long>(in_.Bytes(8))
                                                             : static_cast<std::int16_t>(in_.Bytes(2));
                for (int i = 0; i < count; ++i) {
                    AddOne(user, m);
                    m.tc = Plus(m.tc, step);
                    m.number = 0;
                }
                break;
            }
            case 2:
                Remove(user, ReadMark());
                break;
            case 3:
            case 4:
            case 5:
            case 6:
                Find(user, ReadMark(), static_cast<Search>(op - 3));
                break;
            case 7:
            case 8:
                Copy(user, op == 8);
                break;
            case 9:
                users_.RemoveAllCuePointOfUser(user);
                if (u != nullptr) {
                    SaveIntoCache(static_cast<std::int16_t>(user));
                    ClearTrain(user);
                    Expect(user, CuePointDbEventType::CuePointsRemovedAll, std::nullopt,
                           DeleteCommand{UmId::Empty(), true});
                }
                break;
            case 10: {
                const DeleteCommand d = ReadDelete();
                users_.RemoveAllCuePointOfUser(user, CuePointDeleteCommand(d.clip, d.train));
                if (u == nullptr) {
                    break;
                }
                if (d.train) {
                    ClearTrain(user);
                } else if (Entry* entry = UmId::IsNullOrEmpty(d.clip) ? nullptr : FindEntry(*u, d.clip)) {
                    u->clips.erase(u->clips.begin() + (entry - u->clips.data()));
                }
                Expect(user, CuePointDbEventType::CuePointsRemovedAll, std::nullopt, d);
                break;
            }
            case 11:
                users_.RemoveAllCuePointOfClip(user);
                if (u != nullptr) {
                    u->clips.clear();
                }
                break;
            case 12: {
                const std::uint8_t controller = in_.Byte() % 3;
                users_.SetCacheUser(user, controller);
                if (u != nullptr) {
                    model_.controllers[static_cast<std::int16_t>(user)] = controller;
                }
                break;
            }
            case 13:  // the cache takes a 16-bit user: 65536 is user 0 there
                users_.SetCuePointsIntoCache(static_cast<std::int16_t>(user));
                SaveIntoCache(static_cast<std::int16_t>(user));
                touched_ = static_cast<std::int16_t>(user);
                break;
            case 14: {
                const std::uint8_t controller = in_.Byte() % 3;
                Check(
                    users_.HasCacheCuePoints(user, controller) ==
                    (u != nullptr && model_.cache.count({static_cast<std::int16_t>(user), controller}) != 0));
                break;
            }
            case 15: {
                const std::uint8_t controller = in_.Byte() % 3;
                if (u == nullptr) {
                    users_.SetCuePoint(controller, user);
                    break;
                }
                const auto saved = model_.cache.find({static_cast<std::int16_t>(user), controller});
                if (saved == model_.cache.end() || saved->second.second < 1) {
                    users_.SetCuePoint(controller, user);
                    break;
                }
                if (u->train.marks.size() + saved->second.first.size() > MaxTrain) {
                    break;
                }
                users_.SetCuePoint(controller, user);
                // Behind what is there, unsorted, with the saved counter.
                u->train.marks.insert(u->train.marks.end(), saved->second.first.begin(),
                                      saved->second.first.end());
                u->train.counter = saved->second.second;
                break;
            }
            case 16: {
                const std::uint8_t what = in_.Byte();
                const std::int32_t slot =
                    what >= 0xF0 ? ((what & 1) != 0 ? INT32_MIN : INT32_MAX) : what % 14 - 2;
                const bool inRange = slot >= 0 && slot < 10;
                if (what % 3 == 0) {
                    const DeleteCommand d = ReadDelete();
                    users_.SetCurrentClipToDelete(user, slot, CuePointDeleteCommand(d.clip, d.train));
                    if (u != nullptr && inRange) {
                        u->slots[static_cast<std::size_t>(slot)] = d;
                    }
                } else if (what % 3 == 1) {
                    const DeleteCommand want =
                        u != nullptr && inRange ? u->slots[static_cast<std::size_t>(slot)] : DeleteCommand();
                    Check(Same(want, users_.GetCurrentClipToDelete(user, slot)));
                } else {
                    users_.ClearAllCurrentClipToDelete(user);
                    if (u != nullptr) {
                        u->slots.fill(DeleteCommand{UmId::Empty(), false});
                    }
                }
                break;
            }
            case 17: {
                const auto value = static_cast<std::int32_t>(in_.Bytes(4));
                if ((value & 1) != 0) {
                    users_.SetCurrentUserCommand(user, CuePointUsers::cue_point_user_command(value));
                    if (u != nullptr) {
                        u->command = value;
                    }
                }
                Check(static_cast<std::int32_t>(users_.GetCurrentUserCommand(user)) ==
                      (u != nullptr ? u->command : 0));
                break;
            }
            default:
                Read(user, u);
                break;
        }
    }

    // The read-only forms: none of them makes a clip entry.
    void Read(std::int32_t user, User* u) {
        const bool train = (in_.Byte() & 1) != 0;
        const std::string text = ClipTexts[in_.Byte() % (sizeof ClipTexts / sizeof ClipTexts[0])];
        const UmId clip = (in_.Byte() & 1) != 0 ? UmId(text) : ReadClip();
        const List* list = nullptr;
        if (u != nullptr) {
            Entry* entry = FindEntry(*u, clip);
            list = train ? &u->train : entry != nullptr ? &entry->list : nullptr;
        }
        const int count = list ? static_cast<int>(list->marks.size()) : 0;
        Check(users_.GetCuePointCount(user, clip, train) == count);
        if (clip.Equals(UmId(text))) {
            Check(users_.GetCuePointCount(user, text, train) == count);
            const bool empty = u != nullptr && (count == 0 || (!train && UmId::IsNullOrEmpty(clip)));
            Check(users_.IsListEmpty(user, text, train) == empty);
        }
        std::vector<CuePoint> marks(1, CuePoint());
        users_.GetCuePointList(user, clip, train, marks);
        if (u == nullptr) {
            Check(marks.size() == 1 && Same(Mark(), marks[0]));  // left alone
        } else {
            Check(marks.size() == static_cast<std::size_t>(count));
            for (std::size_t i = 0; i < marks.size(); ++i) {
                Check(Same(list->marks[i], marks[i]));
            }
        }
        if (u == nullptr) {
            std::vector<CuePointClip> clips(1);
            users_.GetClipList(user, clips);
            Check(clips.size() == 1 && !clips[0].GetList());
        }
    }

    Reader& in_;
    CuePointUsers users_;
    Model model_;
    std::vector<Expected> expected_;
    std::vector<long long> recent_;
    std::int32_t touched_ = -1;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool listening = [] {
        CuePointUsers::cuePointDbDelegate.Add([](const CuePointDbEventArgs& e) { Raised().push_back(e); });
        return true;
    }();
    Check(listening);
    Raised().clear();
    Reader in(data, size);
    Run run(in);
    run.Operations();
    return 0;
}
