// Loaded in front of a program (LD_PRELOAD), keeps the ports it opens to this machine: a server socket for every
// address is bound to 127.0.0.1 instead. Qt's VNC platform knows no password and takes no address.

#include <arpa/inet.h>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <netinet/in.h>
#include <sys/socket.h>

namespace {

/// The programs that this one starts are left alone.
__attribute__((constructor)) void erbeNicht()
{
    unsetenv("LD_PRELOAD");
}

template <class Adresse> Adresse gelesen(const sockaddr* adresse)
{
    Adresse gelesene{};
    std::memcpy(&gelesene, adresse, sizeof gelesene);
    return gelesene;
}

int bindeWirklich(int buchse, const void* adresse, socklen_t laenge)
{
    static const auto original = reinterpret_cast<int (*)(int, const void*, socklen_t)>(dlsym(RTLD_NEXT, "bind"));
    return original(buchse, adresse, laenge);
}

} // namespace

/// Port 0 is a client's choice of a local port and passes unchanged, as does an address that was meant.
extern "C" __attribute__((visibility("default"))) int bind(int buchse, const sockaddr* adresse,
                                                           socklen_t laenge) noexcept
{
    if (adresse->sa_family == AF_INET && laenge >= sizeof(sockaddr_in)) {
        auto v4 = gelesen<sockaddr_in>(adresse);
        if (v4.sin_port != 0 && v4.sin_addr.s_addr == htonl(INADDR_ANY)) {
            v4.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
            return bindeWirklich(buchse, &v4, sizeof v4);
        }
    } else if (adresse->sa_family == AF_INET6 && laenge >= sizeof(sockaddr_in6)) {
        auto v6 = gelesen<sockaddr_in6>(adresse);
        if (v6.sin6_port != 0 && IN6_IS_ADDR_UNSPECIFIED(&v6.sin6_addr)) {
            inet_pton(AF_INET6, "::ffff:127.0.0.1", &v6.sin6_addr);
            return bindeWirklich(buchse, &v6, sizeof v6);
        }
    }
    return bindeWirklich(buchse, adresse, laenge);
}
