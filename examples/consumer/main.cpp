// Makes a server number, a clip address and a GUID with the installed library and prints them.
#include <PlurexData/PlurexData.h>

#include <iostream>

int main() {
    using namespace Korv::Plurex::Data;

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
