#include "shell/elements/ZZModusOptionen.h"

#include "shell/elements/Bloecke.h"
#include "shell/elements/Utf8.h"

#include <QRadioButton>

ZZModusOptionen::ZZModusOptionen(QWidget* eltern, const QString& name) : QWidget(eltern)
{
    Bloecke bloecke;
    for (int i = 0; i < 3; ++i) {
        const auto modus = static_cast<ZZModus>(i + 1);
        auto* option = new QRadioButton(qt(zzText(modus)), this);
        option->setObjectName(QString("%1(%2)").arg(name).arg(i));
        option->setChecked(i == 0);
        connect(option, &QRadioButton::clicked, this, [this, modus] {
            if (beiWahl)
                beiWahl(modus);
        });
        optionen_[static_cast<std::size_t>(i)] = option;
        bloecke.push_back(option);
    }
    setLayout(eng(spalte(bloecke)));
}

ZZModus ZZModusOptionen::modus() const
{
    if (optionen_[2]->isChecked())
        return ZZModus::Nur;
    return optionen_[1]->isChecked() ? ZZModus::Mit : ZZModus::Ohne;
}
