#include "tips/screens/Markenwahl.h"

#include "shell/elements/Bildschirm.h"
#include "shell/elements/Stil.h"
#include "tips/screens/Felder.h"

#include <QGridLayout>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace {

/// An option without a mark of its own: that stands beside it.
class Optionstext final : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

    QSize sizeHint() const override
    {
        const QSize text = fontMetrics().size(Qt::TextShowMnemonic, this->text());
        return text + QSize(2 * Stil::kEng, 2 * Stil::kFokus);
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QStylePainter maler(this);
        QStyleOptionButton aussehen;
        initStyleOption(&aussehen);
        maler.drawItemText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, palette(), isEnabled(), text(),
                           QPalette::WindowText);
        if (hasFocus())
            maler.drawPrimitive(QStyle::PE_FrameFocusRect, aussehen);
    }
    bool hitButton(const QPoint& ort) const override { return rect().contains(ort); }
};

} // namespace

Markenwahl::Markenwahl(std::initializer_list<Marke> marken, QWidget* eltern) : QWidget(eltern)
{
    auto* gitter = new QGridLayout(this);
    gitter->setContentsMargins(0, 0, 0, 0);
    gitter->setSpacing(Stil::kEng);
    gitter->setColumnStretch(2, 1);
    for (const Marke& eine : marken) {
        const auto stelle = static_cast<int>(optionen_.size());
        auto* marke = benannt(new Klickfeld(this), eine.marke);
        auto* option = benannt(new Optionstext(eine.kurztext, this), eine.option);
        auto* erklaerung = benannt(new Klickfeld(eine.text, this), eine.erklaerung);
        alsUeberschrift(marke);
        for (QWidget* feld : std::initializer_list<QWidget*>{marke, option, erklaerung})
            feld->setToolTip(eine.hinweis);
        marke->beiKlick = erklaerung->beiKlick = [option] { option->click(); };
        gitter->addWidget(marke, stelle, 0);
        gitter->addWidget(option, stelle, 1, Qt::AlignLeft | Qt::AlignVCenter);
        gitter->addWidget(erklaerung, stelle, 2);
        optionen_.push_back(option);
        marken_.push_back(marke);
        connect(option, &QRadioButton::toggled, this, [this, stelle](bool gewaehlt) {
            zeigeMarken();
            if (gewaehlt && beiWahl)
                beiWahl(stelle);
        });
    }
    zeigeMarken();
}

int Markenwahl::gewaehlte() const
{
    const auto ort = std::ranges::find_if(optionen_, &QRadioButton::isChecked);
    return static_cast<int>(ort - optionen_.begin());
}

void Markenwahl::waehle(int stelle)
{
    optionen_[static_cast<std::size_t>(stelle)]->setChecked(true);
}

void Markenwahl::zeigeMarken()
{
    for (std::size_t i = 0; i < marken_.size(); ++i)
        marken_[i]->setText(optionen_[i]->isChecked() ? "●" : "○");
}
