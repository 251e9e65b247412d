#pragma once
// A list box whose items are rows of columns: each item is split at its tab
// characters and the parts are drawn at the tab stops.
//
// TabStops lists the stops, ascending, as numbers separated by spaces or
// commas ("80 160 240"), in pixels or, with TabUnits tuChars, in average
// character widths of the font, measured from the left of the text. A part
// starts at the first stop right of where the part before it ended; past
// the last stop the stops go on at the last interval (at the single stop's
// width when there is one, every eight characters when there is none).
// Stops that are negative, do not ascend or are not numbers raise
// EqTabListboxError (in the designer the message is shown and the old
// stops stay).
//
// Keyboard and selection are the list box's own. OnClick fires when the
// user selects another item (by mouse or key), OnDblClick on a double
// click on an item.
//
// Properties (defaults): Items (empty), ItemIndex (-1), TabStops (empty),
// TabUnits (tuPixels), MultiSelect (false), Color (clWindow), FontColor
// (clWindowText), Font, Hint.

#include "host/tcolor.h"
#include "host/tcomponent.h"

#include <QFontMetrics>
#include <QListView>

class QStringListModel;

#include <stdexcept>

class EqTabListboxError : public std::runtime_error
{
public:
    explicit EqTabListboxError(const QString &message) : std::runtime_error(message.toStdString()) {}
};

// The stops in pixels read from their text; raises EqTabListboxError.
QList<int> ParseTabStops(const QString &text);
// Where each part of a row starts, given the parts' widths, the stops in
// pixels and the step used when there are no stops.
QList<int> TabColumns(const QList<int> &partWidths, const QList<int> &stops, int defaultStep);

class TqTabListbox : public QListView, public TComponentCore
{
    Q_OBJECT
    Q_PROPERTY(QStringList Items READ Items WRITE SetItems)
    Q_PROPERTY(int ItemIndex READ ItemIndex WRITE SetItemIndex)
    Q_PROPERTY(QString TabStops READ TabStops WRITE writeTabStops)
    Q_PROPERTY(TTabUnits TabUnits READ TabUnits WRITE SetTabUnits)
    Q_PROPERTY(bool MultiSelect READ MultiSelect WRITE SetMultiSelect)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(TColor FontColor READ FontColor WRITE SetFontColor)
    Q_PROPERTY(QFont Font READ font WRITE setFont)
    Q_PROPERTY(QString Hint READ toolTip WRITE setToolTip)
    Q_PROPERTY(int Tag READ Tag WRITE SetTag)

public:
    enum TTabUnits { tuPixels, tuChars };
    Q_ENUM(TTabUnits)

    explicit TqTabListbox(QWidget *parent = nullptr);

    QStringList Items() const;
    void SetItems(const QStringList &items);
    int ItemIndex() const;
    int Count() const;
    void SetItemIndex(int index);
    QString TabStops() const { return FTabStops; }
    // Raises EqTabListboxError for bad stops (shown instead in the designer).
    void SetTabStops(const QString &stops);
    // The stops as numbers in TabUnits.
    QList<int> Tabs() const { return FTabs; }
    void SetTabs(const QList<int> &stops);
    TTabUnits TabUnits() const { return FUnits; }
    void SetTabUnits(TTabUnits units);
    bool MultiSelect() const { return selectionMode() == QAbstractItemView::ExtendedSelection; }
    void SetMultiSelect(bool multi);
    TColor Color() const { return FColor; }
    void SetColor(TColor color);
    TColor FontColor() const { return FFontColor; }
    void SetFontColor(TColor color);

    // The stops in pixels for the font now.
    QList<int> PixelTabs() const;
    // Where the parts of row `row` start, in the viewport's coordinates.
    QList<int> ColumnsOf(int row) const;
    // The left of the text in a row.
    static constexpr int TextMargin = 2;

signals:
    void OnClick(QObject *Sender);
    void OnDblClick(QObject *Sender);

protected:
    void Loaded() override;
    void changeEvent(QEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    class Delegate;
    void applyColors();
    // Where the parts of a row start, from the left of its text.
    QList<int> rowColumns(const QStringList &parts, const QFontMetrics &metrics) const;
    // The property's setter, as a form loader or setProperty calls it:
    // bad stops go to the application's OnException and the old ones stay,
    // since no exception may cross Qt's frames.
    void writeTabStops(const QString &stops);

    QStringListModel *FModel;
    QString FTabStops;
    QList<int> FTabs;
    TTabUnits FUnits = tuPixels;
    TColor FColor = clWindow;
    TColor FFontColor = clWindowText;
    bool FSetting = false;
    // An index read from a form before the items (texts come last).
    int FPendingIndex = -1;
};
