#pragma once

#include <QPointer>
#include <QScrollBar>

#include <functional>

/// A range of 32-bit numbers on a scroll bar. The toolkit's bars have such a range of their own, so value and position
/// are the same here; what stays are the members, and one event for each change.
class CLongScroll {
public:
    CLongScroll() = default;
    /// See `setClient`.
    explicit CLongScroll(QObject* client) { setClient(client); }
    ~CLongScroll();
    CLongScroll(const CLongScroll&) = delete;
    CLongScroll& operator=(const CLongScroll&) = delete;

    /// Null before one is set, and when it is gone.
    QScrollBar* Client() const { return bar_; }
    /// The bar to drive, horizontal or vertical; it takes over the numbers that are set here. Raises `ListenFehler`
    /// with the source "CLongScroll" if it is no scroll bar.
    void setClient(QObject* client);

    int Max() const { return max_; }
    /// A maximum below the minimum moves that one too, and the other way round; the value stays between them.
    void setMax(int max);
    int Min() const { return min_; }
    void setMin(int min);
    int LargeChange() const { return large_; }
    void setLargeChange(int change);
    int SmallChange() const { return small_; }
    void setSmallChange(int change);
    int Value() const { return value_; }
    /// A value outside of the range becomes the nearest one in it.
    void setValue(int value);

    /// Once for each change of the value, whoever makes it.
    std::function<void()> beiAenderung;

private:
    void uebergib();
    void uebernimm(int value);

    QPointer<QScrollBar> bar_;
    QMetaObject::Connection verbindung_;
    int max_{32767};
    int min_{0};
    int large_{1};
    int small_{1};
    int value_{0};
};
