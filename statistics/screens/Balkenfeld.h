#pragma once

#include "shell/logic/Lottozahl.h"
#include "statistics/logic/Balkengraphik.h"
#include "statistics/screens/Balkenlage.h"

#include <QFrame>

#include <array>
#include <optional>
#include <vector>

class QLabel;

/// How a bar chart is called, and what it can show.
struct Balkenfeldbau {
    const char* rahmen = "Bild1";
    const char* balken = "Bild2"; ///< the bar of a number n is named `balken(n)`
    int erste = 1;                ///< the lowest number that a bar stands for
    int anzahl = kHoechsteZahl;   ///< so many bars at most
    Balkenrichtung richtung = Balkenrichtung::Aufwaerts;
    bool mitAnzahl = false; ///< the count stands at the end of each bar
};

/// A bar chart with its scale and the number of each bar. Of more than ten bars side by side the numbers stand in two
/// rows, the odd and the even places.
class Balkenfeld final : public QFrame {
public:
    explicit Balkenfeld(QWidget* eltern, const Balkenfeldbau& bau = {});

    /// Shows the bars of the chart in its order. Their numbers are among those that were asked for at first.
    void zeige(const Balkengraphik& graphik);
    /// The number whose bar is `feld`; nothing for any other widget.
    std::optional<int> zahlVon(const QWidget* feld) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* ereignis) override;
    void paintEvent(QPaintEvent* ereignis) override;

private:
    Balkenlage lage() const;
    QFrame* feld(int zahl) const;
    void ordne();

    const Balkenfeldbau bau_;
    Balkengraphik graphik_;
    std::vector<QFrame*> balken_; ///< index: number - `erste`
    std::array<QLabel*, 5> skala_;
};
