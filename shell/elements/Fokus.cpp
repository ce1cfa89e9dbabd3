#include "shell/elements/Fokus.h"

#include <QLayout>
#include <QWidget>

#include <algorithm>
#include <vector>

namespace {

void sammle(QLayout* layout, std::vector<QWidget*>& reihe);

void sammle(QWidget* feld, std::vector<QWidget*>& reihe)
{
    if (feld->focusPolicy() & Qt::TabFocus)
        reihe.push_back(feld);
    if (feld->layout())
        sammle(feld->layout(), reihe);
}

void sammle(QLayout* layout, std::vector<QWidget*>& reihe)
{
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem* teil = layout->itemAt(i);
        if (teil->widget())
            sammle(teil->widget(), reihe);
        else if (teil->layout())
            sammle(teil->layout(), reihe);
    }
}

} // namespace

void ordneFokus(QWidget& bildschirm, QWidget* zuerst)
{
    if (!bildschirm.layout())
        return;
    std::vector<QWidget*> reihe;
    sammle(bildschirm.layout(), reihe);
    for (std::size_t i = 1; i < reihe.size(); ++i)
        QWidget::setTabOrder(reihe[i - 1], reihe[i]);
    const auto erstes = std::ranges::find_if(
        reihe, [&](const QWidget* feld) { return feld->isEnabled() && feld->isVisibleTo(&bildschirm); });
    if (!zuerst && erstes != reihe.end())
        zuerst = *erstes;
    if (zuerst)
        zuerst->setFocus();
}
