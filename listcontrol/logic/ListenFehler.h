#pragma once

#include <stdexcept>
#include <string>
#include <utility>

/// What the lists raise: `what()` is the text for the user, `quelle()` the routine or class that failed, `nummer()`
/// the number of a run-time error (0 for the lists' own errors).
class ListenFehler : public std::runtime_error {
public:
    ListenFehler(std::string quelle, const std::string& text, int nummer = 0)
        : std::runtime_error(text),
          quelle_(std::move(quelle)),
          nummer_(nummer)
    {}

    const std::string& quelle() const { return quelle_; }
    int nummer() const { return nummer_; }

private:
    std::string quelle_;
    int nummer_;
};

/// Error 9: a row or column that is not there.
class IndexFehler final : public ListenFehler {
public:
    static constexpr int kNummer = 9;

    explicit IndexFehler(std::string quelle)
        : ListenFehler(std::move(quelle), "Index außerhalb des gültigen Bereichs", kNummer)
    {}
};
