#pragma once

#include <QGroupBox>

/// A group of controls as a card: a light ground with its title at the top.
class Rahmen : public QGroupBox {
public:
    Rahmen(const QString& titel, QWidget* eltern);

    /// Takes the layout over and leaves room for the title.
    void setzeInhalt(QLayout* inhalt);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    QFont titelschrift() const;
};
