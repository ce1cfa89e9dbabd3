#include <arpa/inet.h>
#include <cstring>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <string>
#include <sys/socket.h>
#include <unistd.h>

namespace {

/// A TCP socket that closes itself.
class Buchse {
public:
    explicit Buchse(int familie) : nummer_(socket(familie, SOCK_STREAM, 0)) {}
    Buchse(const Buchse&) = delete;
    Buchse& operator=(const Buchse&) = delete;
    ~Buchse()
    {
        if (nummer_ >= 0)
            close(nummer_);
    }
    bool offen() const { return nummer_ >= 0; }

    template <class Adresse> bool binde(const Adresse& adresse)
    {
        sockaddr_storage platz{};
        std::memcpy(&platz, &adresse, sizeof adresse);
        return bind(nummer_, reinterpret_cast<const sockaddr*>(&platz), sizeof adresse) == 0;
    }

    template <class Adresse> Adresse gebunden() const
    {
        sockaddr_storage platz{};
        socklen_t laenge = sizeof platz;
        getsockname(nummer_, reinterpret_cast<sockaddr*>(&platz), &laenge);
        Adresse adresse{};
        std::memcpy(&adresse, &platz, sizeof adresse);
        return adresse;
    }

private:
    int nummer_;
};

sockaddr_in v4(const char* adresse, in_port_t port)
{
    sockaddr_in ergebnis{};
    ergebnis.sin_family = AF_INET;
    ergebnis.sin_port = htons(port);
    inet_pton(AF_INET, adresse, &ergebnis.sin_addr);
    return ergebnis;
}

sockaddr_in6 v6(const char* adresse, in_port_t port)
{
    sockaddr_in6 ergebnis{};
    ergebnis.sin6_family = AF_INET6;
    ergebnis.sin6_port = htons(port);
    inet_pton(AF_INET6, adresse, &ergebnis.sin6_addr);
    return ergebnis;
}

std::string text(const in_addr& adresse)
{
    char puffer[INET_ADDRSTRLEN] = "";
    inet_ntop(AF_INET, &adresse, puffer, sizeof puffer);
    return puffer;
}

std::string text(const in6_addr& adresse)
{
    char puffer[INET6_ADDRSTRLEN] = "";
    inet_ntop(AF_INET6, &adresse, puffer, sizeof puffer);
    return puffer;
}

/// A port that nobody holds at this moment.
in_port_t freierPort()
{
    Buchse buchse(AF_INET);
    EXPECT_TRUE(buchse.binde(v4("127.0.0.1", 0)));
    return ntohs(buchse.gebunden<sockaddr_in>().sin_port);
}

} // namespace

TEST(NurLokal, EinServerFuerAlleV4AdressenHoertNurAufDiesenRechner)
{
    Buchse buchse(AF_INET);
    const in_port_t port = freierPort();
    ASSERT_TRUE(buchse.binde(v4("0.0.0.0", port)));
    const auto gebunden = buchse.gebunden<sockaddr_in>();
    EXPECT_EQ(text(gebunden.sin_addr), "127.0.0.1");
    EXPECT_EQ(ntohs(gebunden.sin_port), port);
}

TEST(NurLokal, EinServerFuerAlleV6AdressenHoertNurAufDiesenRechnerUndIstUeberV4Erreichbar)
{
    Buchse buchse(AF_INET6);
    if (!buchse.offen())
        GTEST_SKIP() << "no IPv6 on this machine";
    const in_port_t port = freierPort();
    ASSERT_TRUE(buchse.binde(v6("::", port)));
    const auto gebunden = buchse.gebunden<sockaddr_in6>();
    EXPECT_EQ(text(gebunden.sin6_addr), "::ffff:127.0.0.1");
    EXPECT_EQ(ntohs(gebunden.sin6_port), port);
}

TEST(NurLokal, EineGenannteAdresseBleibt)
{
    Buchse buchse(AF_INET);
    ASSERT_TRUE(buchse.binde(v4("127.0.0.2", freierPort())));
    EXPECT_EQ(text(buchse.gebunden<sockaddr_in>().sin_addr), "127.0.0.2");
}

TEST(NurLokal, EinClientOhnePortBleibt)
{
    Buchse buchse(AF_INET);
    ASSERT_TRUE(buchse.binde(v4("0.0.0.0", 0)));
    EXPECT_EQ(text(buchse.gebunden<sockaddr_in>().sin_addr), "0.0.0.0");
}
