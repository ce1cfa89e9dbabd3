#include "shell/elements/Doppelklick.h"

#include <QMouseEvent>
#include <QWidget>

namespace {

class Doppelklick final : public QObject {
public:
    Doppelklick(QWidget* feld, std::function<void()> tue) : QObject(feld), tue_(std::move(tue))
    {
        feld->installEventFilter(this);
    }

    bool eventFilter(QObject* feld, QEvent* ereignis) override
    {
        if (ereignis->type() != QEvent::MouseButtonDblClick ||
            static_cast<QMouseEvent*>(ereignis)->button() != Qt::LeftButton)
            return QObject::eventFilter(feld, ereignis);
        tue_();
        return true;
    }

private:
    std::function<void()> tue_;
};

} // namespace

void beiDoppelklick(QWidget* feld, const std::function<void()>& tue)
{
    new Doppelklick(feld, tue);
}
