#pragma once

#include "engines/screens/Trefferdetails.h"
#include "engines/tests/Suchtest.h"
#include "listcontrol/screens/ListView.h"

#include <QCoreApplication>

/// The stage of the screens that show the hits of one combination.
class Treffertest : public Suchtest {
protected:
    /// The rows of the detail list, once a long one is whole.
    QStringList details(const Bildschirm& schirm)
    {
        const auto& faelle = dynamic_cast<Trefferdetails&>(*schirm.findChild<QWidget*>("FrameDetail")).faelle();
        const auto& liste = *schirm.findChild<ListView*>("ListView1");
        while (liste.ItemCount() < static_cast<int>(faelle.size()))
            QCoreApplication::processEvents();
        return bedienung.zeilen("ListView1", 0, 1'000'000).zeilen;
    }
};
