#pragma once

#include <QObject>

#include <filesystem>
#include <functional>
#include <string>

class Liste;
class QPoint;
struct ZiehungsArchiv;

/// Fills a list box with the slips of the active game, as they lie in the program directory.
class Tippscheinliste final : public QObject {
public:
    Tippscheinliste(const ZiehungsArchiv& archiv, Liste& liste);

    /// Reads the directory anew. The chosen slip stays chosen if it is still there.
    void frischeAuf();
    std::size_t anzahl() const;
    /// The name of the chosen slip; empty without one.
    std::string gewaehlter() const;
    std::filesystem::path pfad(const std::string& name) const;

    /// The user wants a slip deleted: the right button on it, or Entf. Without it the list has its usual menu.
    std::function<void(const std::string& name)> beiLoeschen;

protected:
    bool eventFilter(QObject* feld, QEvent* ereignis) override;

private:
    bool verlangeLoeschen(int zeile);

    const ZiehungsArchiv& archiv_;
    Liste& liste_;
};
