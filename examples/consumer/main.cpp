// Makes a server number, a clip address and a GUID with the installed library and prints them, after
// checking that the library it loaded is the one its headers describe.
#include <PlurexData/PlurexData.h>

#include <cstring>
#include <iostream>

int main() {
    using namespace Korv::Plurex::Data;

    std::cout << "headers " << PLUREXDATA_VERSION_STRING << ", library " << Korv::Plurex::Version() << '\n';
    if (std::strcmp(Korv::Plurex::Version(), PLUREXDATA_VERSION_STRING) != 0) {
        return 1;
    }

    const Servers::ServerId server(10);
    const Clips::KepId clip(1, 2, 3, 'B', server);
    const Guid parsed = Guid::FromString("00112233-4455-6677-8899-AABBCCDDEEFF");

    std::cout << "server  [" << server.ToString() << "]\n"
              << "kep id  " << clip.ToString() << '\n'
              << "guid    " << parsed.ToString() << '\n'
              << "random  " << Guid().ToString() << '\n';
    return parsed.ToString() == "00112233-4455-6677-8899-aabbccddeeff" && clip.ToString() == "123B/   10" ? 0
                                                                                                          : 1;
}
