#pragma once

#include <QLayout>

#include <functional>
#include <vector>

class QScrollBar;

/// A content above a foot. Where there is less room than the content needs, it scrolls, from its top left on, and the
/// foot stays in sight; a control that gets the focus scrolls into view. The controls stay children of the widget that
/// has this layout.
class Rollinhalt final : public QLayout {
public:
    /// `hoechstens` is the most room that may be asked for; a larger content scrolls.
    Rollinhalt(QWidget* eltern, QLayout* inhalt, QWidget* fuss, std::function<QSize()> hoechstens);
    ~Rollinhalt() override;

    /// The size without a need to scroll; where `platz` is smaller, that, with room for the scroll bars.
    QSize groesseIn(const QSize& platz) const;

    QSize sizeHint() const override;
    QSize minimumSize() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int breite) const override;
    int minimumHeightForWidth(int breite) const override;
    void setGeometry(const QRect& rechteck) override;

    int count() const override { return static_cast<int>(teile_.size()); }
    QLayoutItem* itemAt(int stelle) const override;
    QLayoutItem* takeAt(int stelle) override;
    void addItem(QLayoutItem* teil) override { teile_.push_back(teil); }

    bool eventFilter(QObject* eltern, QEvent* ereignis) override;

private:
    int fusshoehe(int breite) const;
    QSize bedarf(int breite) const;
    void rolleZu(const QWidget* feld);

    std::vector<QLayoutItem*> teile_; ///< the content, the foot
    std::function<QSize()> hoechstens_;
    QRect sicht_;    ///< where the content is to be seen
    QPoint gerollt_; ///< by so much the content stands to the left of its place and above it
    QScrollBar *quer_, *hoch_;
};
