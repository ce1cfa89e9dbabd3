#include "listcontrol/screens/ListView.h"

#include "listcontrol/screens/Listenkopf.h"
#include "shell/elements/Stil.h"

#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace {

constexpr int kAngepassteZeilen = 50'000; ///< so many rows are looked at for the width of a column

} // namespace

ListView::ListView(QWidget* eltern)
    : Zeilenansicht(eltern),
      zellmaler_(Stil::festeSchrift()),
      kopf_(new Listenkopf(spalten_, lage_, this))
{
    setFont(Stil::festeSchrift());
    verbindeKopf();
    ordneKopf();
}

ListView::~ListView() = default;

void ListView::verbindeKopf()
{
    kopf_->beiKlick = [this](int spalte) { klickeSpalte(spalte); };
    kopf_->beiAnpassen = [this](int spalte) { passeBreiteAn(spalte); };
    kopf_->beiUmordnung = [this] { ordneSpalten(); };
    kopf_->beiSchub = [this](int pixel) { horizontalScrollBar()->setValue(horizontalScrollBar()->value() + pixel); };
    kopf_->beiBreite = [this](int spalte, int breite) {
        spalten_.Item(spalte).WidthAutoSized = false;
        setColumnWidth(spalte, breite);
    };
    QObject::connect(horizontalScrollBar(), &QScrollBar::valueChanged, kopf_,
                     [this](int wert) { kopf_->setzeVersatz(wert); });
}

// --- Items

void ListView::setItemText(int row, int column, std::string_view text)
{
    posten_.Item(row).setText(column, text);
    erneuereZeilen();
}

int ListView::AddPicture(const QPixmap& picture)
{
    bilder_.push_back(picture);
    return PictureCount() - 1;
}

int ListView::AddItem(std::string_view text, std::string_view tag, int index)
{
    const int zeile = posten_.AddItem(text, tag, index);
    auswahl_.nachHinzufuegen(zeile);
    vergissSortierung();
    erneuereZeilen();
    return zeile;
}

void ListView::RemoveItem(int row)
{
    auswahl_.vorEntfernen(row);
    posten_.RemoveItem(row);
    erneuereZeilen();
}

void ListView::MoveItem(int from, int to)
{
    posten_.MoveItem(from, to);
    auswahl_.nachVerschieben(from, to);
    vergissSortierung();
    erneuereZeilen();
}

void ListView::Clear()
{
    posten_.Clear();
    auswahl_.nachLeeren();
    vergissSortierung();
    rolleZu(0);
    erneuereZeilen();
}

// --- Columns

void ListView::pruefeLeer() const
{
    if (posten_.ItemCount() > 0)
        throw ListenFehler("ListView", "Kann Spalten nicht hinzufügen oder entfernen wenn Items in Liste!");
}

void ListView::AddColumn(std::string_view key, std::string_view caption, TextAlign textAlign, int width, bool resizable,
                         bool visible)
{
    pruefeLeer();
    Column neue;
    neue.key = key;
    neue.Caption = caption;
    neue.TextAlign = textAlign;
    neue.Width = std::max(0, width);
    neue.Resizable = resizable;
    neue.Visible = visible;
    spalten_.Add(std::move(neue));
    posten_.setColumnCount(spalten_.Count());
    ordneSpalten();
    updateGeometry();
}

void ListView::RemoveColumn(int column)
{
    pruefeLeer();
    spalten_.Item(column); // raises before anything changes
    vergissSortierung();
    kopf_->brichAb();
    lage_.vorEntfernen(column);
    spalten_.Remove(column);
    posten_.setColumnCount(spalten_.Count());
    ordneSpalten();
}

void ListView::setColumnsVisible(bool visible)
{
    kopfSichtbar_ = visible;
    ordneKopf();
}

void ListView::setColumnVisible(int column, bool visible)
{
    spalten_.Item(column).Visible = visible;
    ordneSpalten();
}

void ListView::setColumnCaption(int column, std::string_view caption)
{
    spalten_.Item(column).Caption = caption;
    kopf_->update();
}

void ListView::setColumnWidth(int column, int width)
{
    spalten_.Item(column).Width = std::max(0, width);
    ordneSpalten();
}

void ListView::setColumnResizable(int column, bool resizable)
{
    spalten_.Item(column).Resizable = resizable;
    ordneSpalten();
}

void ListView::setColumnTextAlign(int column, TextAlign textAlign)
{
    spalten_.Item(column).TextAlign = textAlign;
    kopf_->update();
    erneuere();
}

int ListView::breiteFuerZeichen(int zeichen) const
{
    return zellmaler_.textbreite(QString(zeichen, '0')) + innenrand_.left() + innenrand_.right();
}

void ListView::passeBreiteAn(int column)
{
    const Column& spalte = spalten_.Item(column);
    int breite = kopf_->breiteFuer(spalte);
    for (int zeile = 0; zeile < std::min(ItemCount(), kAngepassteZeilen); ++zeile) {
        const QString text = Zellmaler::anzeige(posten_.Item(zeile).Text(column), spalte.TextAlign);
        breite = std::max(breite, vorDemText(zeile, column) + zellmaler_.textbreite(text));
    }
    spalten_.Item(column).WidthAutoSized = false;
    setColumnWidth(column, breite + innenrand_.left() + innenrand_.right());
}

void ListView::stelleSpalten()
{
    lage_.ordne(viewport()->width(), spaltenStrecken_);
    kopf_->update();
}

void ListView::ordneSpalten()
{
    stelleSpalten();
    erneuere();
}

void ListView::ordneKopf()
{
    const int hoehe = kopfSichtbar_ ? kopf_->sollhoehe() : 0;
    setViewportMargins(0, hoehe, 0, 0);
    const QRect flaeche = viewport()->geometry();
    kopf_->setGeometry(flaeche.left(), flaeche.top() - hoehe, flaeche.width(), hoehe);
    kopf_->setVisible(kopfSichtbar_);
}

// --- Behaviour

bool ListView::Sortable() const
{
    return kopf_->anklickbar;
}

void ListView::setSortable(bool sortable)
{
    kopf_->anklickbar = sortable;
}

bool ListView::Reorder() const
{
    return kopf_->umordnen;
}

void ListView::setReorder(bool reorder)
{
    kopf_->umordnen = reorder;
}

void ListView::setOLEDropMode(int mode)
{
    ablegemodus_ = mode == 0 ? 0 : 1;
    setAcceptDrops(ablegemodus_ == 1);
    viewport()->setAcceptDrops(ablegemodus_ == 1);
}

void ListView::setBorderStyle(int style)
{
    setFrameStyle(style == 0 ? int(QFrame::NoFrame) : int(QFrame::StyledPanel) | int(QFrame::Sunken));
    ordneKopf();
}

void ListView::setColumnsAutoSize(bool autoSize)
{
    spaltenStrecken_ = autoSize;
    ordneSpalten();
}

void ListView::setzeFarbe(QPalette::ColorRole rolle, const QColor& farbe)
{
    QPalette neue = palette();
    neue.setColor(rolle, farbe);
    setPalette(neue);
}

void ListView::setRedraw(bool redraw)
{
    if (std::exchange(zeichnet_, redraw) == redraw)
        return;
    if (redraw) {
        gleicheAb();
        rolleZu(std::min(std::exchange(zielzeile_, -1), ItemCount() - 1));
    }
    viewport()->setUpdatesEnabled(redraw);
    kopf_->setUpdatesEnabled(redraw);
}

// --- Actions

void ListView::Sort(int column, Sortierrichtung order)
{
    auswahl_.sortiere(column, order);
    spalten_.Item(column).LastSortOrder = order;
    kopf_->setzeSortierspalte(column);
    erneuereZeilen();
}

void ListView::vergissSortierung()
{
    const int sortierte = kopf_->sortierspalte();
    if (sortierte < 0)
        return;
    spalten_.Item(sortierte).LastSortOrder.reset();
    kopf_->setzeSortierspalte(-1);
}

int ListView::ColumnFromPoint(int x, int y) const
{
    const QRect flaeche = viewport()->geometry().adjusted(0, -viewportMargins().top(), 0, 0);
    return flaeche.contains(x, y) ? lage_.spalteBei(x - flaeche.left() + horizontalScrollBar()->value()) : -1;
}

int ListView::RowFromPoint(int x, int y) const
{
    return viewport()->geometry().contains(x, y) ? zeileBei(y - viewport()->y()) : -1;
}

void ListView::Refresh()
{
    gleicheAb();
    kopf_->repaint();
    viewport()->repaint();
}

void ListView::MakeSureVisible(int row)
{
    posten_.Item(row);
    rolleZu(row);
}

void ListView::zeigeSpalte(int column)
{
    gleicheAb();
    const Spaltenlage::Platz* platz = lage_.platz(column);
    if (!platz)
        return;
    QScrollBar* leiste = horizontalScrollBar();
    const int vonRechts = platz->x + platz->breite - viewport()->width();
    leiste->setValue(std::clamp(leiste->value(), std::min(vonRechts, platz->x), platz->x));
}

void ListView::rolleZu(int zeile)
{
    if (zeichnet_ && zeile >= 0)
        zeigeZeile(zeile);
    else
        zielzeile_ = zeile;
}
