#include "qtablistbox.h"

#include "host/tapplication.h"

#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QStringListModel>
#include <QStyledItemDelegate>

QList<int> ParseTabStops(const QString &text)
{
    QList<int> stops;
    static const QRegularExpression separators(QStringLiteral("[\\s,;]+"));
    for (const QString &word : text.split(separators, Qt::SkipEmptyParts)) {
        bool ok = false;
        const int stop = word.toInt(&ok);
        if (!ok)
            throw EqTabListboxError(QStringLiteral("\"%1\" is not a tab stop").arg(word));
        stops << stop;
    }
    for (int i = 0; i < stops.size(); ++i) {
        if (stops[i] < 0)
            throw EqTabListboxError(QStringLiteral("Tab stop %1 is negative").arg(stops[i]));
        if (i > 0 && stops[i] <= stops[i - 1])
            throw EqTabListboxError(QStringLiteral("Tab stops must ascend: %1 follows %2").arg(stops[i]).arg(stops[i - 1]));
    }
    return stops;
}

QList<int> TabColumns(const QList<int> &partWidths, const QList<int> &stops, int defaultStep)
{
    // The stop after `x`: a listed one, else on at the last interval.
    const auto nextStop = [&](int x) {
        for (int stop : stops)
            if (stop > x)
                return stop;
        int last = 0, step = qMax(1, defaultStep);
        if (stops.size() == 1)
            step = qMax(1, stops[0]);
        else if (stops.size() > 1) {
            last = stops.last();
            step = stops.last() - stops[stops.size() - 2];
        }
        return last + ((x - last) / step + 1) * step;
    };
    QList<int> columns;
    int end = 0;
    for (int i = 0; i < partWidths.size(); ++i) {
        const int x = i == 0 ? 0 : nextStop(end);
        columns << x;
        end = x + partWidths[i];
    }
    return columns;
}

class TqTabListbox::Delegate : public QStyledItemDelegate
{
public:
    explicit Delegate(TqTabListbox *box) : QStyledItemDelegate(box), FBox(box) {}

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        // The row's background, selection and focus as the style draws them;
        // the text is ours.
        QStyleOptionViewItem background = option;
        initStyleOption(&background, index);
        background.text.clear();
        QStyle *style = background.widget ? background.widget->style() : FBox->style();
        style->drawControl(QStyle::CE_ItemViewItem, &background, painter, background.widget);

        const QStringList parts = index.data().toString().split(QLatin1Char('\t'));
        const QFontMetrics metrics(option.font);
        const QList<int> columns = FBox->rowColumns(parts, metrics);
        painter->save();
        painter->setFont(option.font);
        painter->setPen((option.state & QStyle::State_Selected)
                            ? option.palette.color(QPalette::HighlightedText)
                            : ColorToQColor(FBox->FontColor()));
        painter->setClipRect(option.rect);
        const int baseline = option.rect.top() + (option.rect.height() - metrics.height()) / 2 + metrics.ascent();
        for (int i = 0; i < parts.size(); ++i)
            painter->drawText(option.rect.left() + TextMargin + columns[i], baseline, parts[i]);
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const QFontMetrics metrics(option.font);
        const QStringList parts = index.data().toString().split(QLatin1Char('\t'));
        const QList<int> columns = FBox->rowColumns(parts, metrics);
        return QSize(TextMargin * 2 + columns.last() + metrics.horizontalAdvance(parts.last()), metrics.height() + 2);
    }

private:
    TqTabListbox *FBox;
};

TqTabListbox::TqTabListbox(QWidget *parent)
    : QListView(parent), TComponentCore(this), FModel(new QStringListModel(this))
{
    setModel(FModel);
    setItemDelegate(new Delegate(this));
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    resize(121, 97);
    applyColors();
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
        if (!FSetting)
            emit OnClick(this);
    });
}

QStringList TqTabListbox::Items() const
{
    return FModel->stringList();
}

void TqTabListbox::SetItems(const QStringList &items)
{
    if (items == Items())
        return;
    FSetting = true;
    FModel->setStringList(items);
    FSetting = false;
    if (FPendingIndex >= 0 && FPendingIndex < Count())
        SetItemIndex(FPendingIndex);
}

void TqTabListbox::Loaded()
{
    TComponentCore::Loaded();
    FPendingIndex = -1;
}

int TqTabListbox::Count() const
{
    return FModel->rowCount();
}

int TqTabListbox::ItemIndex() const
{
    return currentIndex().isValid() ? currentIndex().row() : -1;
}

void TqTabListbox::SetItemIndex(int index)
{
    FPendingIndex = IsLoading() && index >= Count() ? index : -1;
    if (index < -1 || index >= Count())
        index = -1;
    FSetting = true;
    if (index < 0) {
        selectionModel()->clear();
    } else {
        setCurrentIndex(FModel->index(index));
    }
    FSetting = false;
}

void TqTabListbox::SetTabStops(const QString &stops)
{
    QList<int> parsed;
    try {
        parsed = ParseTabStops(stops);
    } catch (const EqTabListboxError &e) {
        if (!IsDesigning())
            throw;
        Application()->ShowException(e);
        return;
    }
    FTabStops = stops.simplified();
    FTabs = parsed;
    scheduleDelayedItemsLayout();
    viewport()->update();
}

void TqTabListbox::writeTabStops(const QString &stops)
{
    try {
        SetTabStops(stops);
    } catch (const EqTabListboxError &e) {
        Application()->HandleException(this, e);
    }
}

void TqTabListbox::SetTabs(const QList<int> &stops)
{
    QStringList words;
    for (int stop : stops)
        words << QString::number(stop);
    SetTabStops(words.join(QLatin1Char(' ')));
}

void TqTabListbox::SetTabUnits(TTabUnits units)
{
    if (units == FUnits)
        return;
    FUnits = units;
    scheduleDelayedItemsLayout();
    viewport()->update();
}

void TqTabListbox::SetMultiSelect(bool multi)
{
    setSelectionMode(multi ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
}

void TqTabListbox::SetColor(TColor color)
{
    if (color == FColor)
        return;
    FColor = color;
    applyColors();
}

void TqTabListbox::SetFontColor(TColor color)
{
    if (color == FFontColor)
        return;
    FFontColor = color;
    applyColors();
}

QList<int> TqTabListbox::PixelTabs() const
{
    if (FUnits == tuPixels)
        return FTabs;
    const int unit = QFontMetrics(font()).averageCharWidth();
    QList<int> pixels;
    for (int stop : FTabs)
        pixels << stop * unit;
    return pixels;
}

QList<int> TqTabListbox::ColumnsOf(int row) const
{
    const QModelIndex index = FModel->index(row);
    if (!index.isValid())
        return {};
    QList<int> columns = rowColumns(index.data().toString().split(QLatin1Char('\t')), QFontMetrics(font()));
    const int left = visualRect(index).left() + TextMargin;
    for (int &x : columns)
        x += left;
    return columns;
}

QList<int> TqTabListbox::rowColumns(const QStringList &parts, const QFontMetrics &metrics) const
{
    QList<int> widths;
    for (const QString &part : parts)
        widths << metrics.horizontalAdvance(part);
    return TabColumns(widths, PixelTabs(), 8 * metrics.averageCharWidth());
}

// System colours follow the palette, so they are resolved again when it
// changes.
void TqTabListbox::applyColors()
{
    QPalette p = palette();
    p.setColor(QPalette::Base, ColorToQColor(FColor));
    p.setColor(QPalette::Text, ColorToQColor(FFontColor));
    setPalette(p);
    viewport()->update();
}

void TqTabListbox::changeEvent(QEvent *event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange)
        applyColors();
    if (event->type() == QEvent::FontChange)
        scheduleDelayedItemsLayout();
}

void TqTabListbox::mouseDoubleClickEvent(QMouseEvent *event)
{
    QListView::mouseDoubleClickEvent(event);
    if (indexAt(event->position().toPoint()).isValid())
        emit OnDblClick(this);
}
