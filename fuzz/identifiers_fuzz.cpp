// UmId, KepId and ServerId from arbitrary values: nothing crashes, and what is accepted reads back the same.
#include "PlurexData/data/clips/KepId.h"
#include "PlurexData/data/clips/UmId.h"
#include "PlurexData/data/servers/ServerId.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>

using Korv::Plurex::Data::Clips::KepId;
using Korv::Plurex::Data::Clips::UmId;
using Korv::Plurex::Data::Servers::ServerId;

namespace {

void Check(bool condition) {
    if (!condition) {
        std::abort();
    }
}

void FuzzUmId(const std::string& text, bool unicode) {
    const UmId id(text, unicode);
    const char* stored = id.GetUmId();
    const std::size_t length = std::strlen(stored);
    Check(length <= 8);
    Check(std::strncmp(stored, text.c_str(), 8) == 0);  // the text cut to 8 characters, up to its NUL
    const UmId again(stored, unicode);
    Check(again.Equals(id) && again == id && again.CompareTo(id) == 0);
    Check(UmId(stored, !unicode) == id && !UmId(stored, !unicode).Equals(id));
    const int edit = UmId::GetUmIdEditNumber(id);
    Check(edit >= -1 && edit <= 999);
    Check(edit == -1 || UmId::IsMacroClip(id));
    Check(UmId::IsPatternClip(id) ==
          (UmId::IsBlackClip(id) || UmId::IsWhiteClip(id) || UmId::IsVirtualClip(id)));
}

void FuzzKepId(int page, int bank, int clip, char camera, int server, int packed) {
    try {
        const KepId id(page, bank, clip, camera, ServerId(server));
        Check(id.GetPage() == page && id.GetBank() == bank && id.GetClip() == clip);
        Check(id.GetCamera() == camera && id.GetServerId().GetValue() == server);
        const KepId repacked(id.GetPosition(), camera, ServerId(server));
        Check(repacked.Equals(id) && repacked.CompareTo(id) == 0);
        Check(KepId::IsNullOrEmpty(id) == false);
    } catch (const std::invalid_argument&) {
    }
    try {
        const KepId id(packed, camera, ServerId::None());
        const KepId rebuilt(id.GetPage(), id.GetBank(), id.GetClip(), camera, ServerId::None());
        Check(rebuilt.GetPosition() == id.GetPosition());
        Check(id.GetPosition() >= 0 && id.GetPosition() <= 999);
    } catch (const std::invalid_argument&) {
    }
}

void FuzzServerId(int value) {
    try {
        const ServerId id(value);
        Check(id.GetValue() == value);
        const std::string text = id.ToString();
        Check(text.size() >= 5 && std::stoi(text) == value);
    } catch (const std::invalid_argument& e) {
        Check(std::strcmp(e.what(), "invalid ServerId") == 0);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const bool unicode = input.ConsumeBool();
    const int page = input.ConsumeIntegral<int>();
    const int bank = input.ConsumeIntegral<int>();
    const int clip = input.ConsumeIntegral<int>();
    const char camera = input.ConsumeIntegral<char>();
    const int server = input.ConsumeIntegral<int>();
    const int packed = input.ConsumeIntegral<int>();
    FuzzKepId(page, bank, clip, camera, server, packed);
    FuzzServerId(server);
    FuzzUmId(input.ConsumeRemainingBytesAsString(), unicode);
    return 0;
}
