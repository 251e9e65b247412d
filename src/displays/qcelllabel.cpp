#include "qcelllabel.h"

TqCustomCellLabel::TqCustomCellLabel(QWidget *parent) : TCustomControl(parent)
{
    SetControlStyle(ControlStyle() | csOpaque);   // Paint covers every pixel
    setFocusPolicy(Qt::NoFocus);
    TControl::SetColor(clBlack);
}

TqCustomCellLabel::~TqCustomCellLabel()
{
    freeCells();
}

void TqCustomCellLabel::freeCells()
{
    for (TControl *&cell : FCells) {
        delete cell;
        cell = nullptr;
    }
}

QSize TqCustomCellLabel::ComputedSize() const
{
    const QSize cell = CellSize();
    return QSize(cell.width() * FCount, cell.height());
}

void TqCustomCellLabel::SetWidth(int value)
{
    if (value != width())
        SetBounds(x(), y(), value, height());
}

void TqCustomCellLabel::SetHeight(int value)
{
    if (value != height())
        SetBounds(x(), y(), width(), value);
}

// Any size from outside (code, a layout, the designer) snaps back to what
// the cells need.
void TqCustomCellLabel::SetBounds(int left, int top, int, int)
{
    const QSize size = ComputedSize();
    TCustomControl::SetBounds(left, top, size.width(), size.height());
}

void TqCustomCellLabel::SetCaption(const QString &caption)
{
    FCaption = caption.isEmpty() ? QStringLiteral(" ") : caption;
    DoCaption();
}

void TqCustomCellLabel::SetElements(quint8 count)
{
    if (count != FCount)
        SetCount(count);
}

void TqCustomCellLabel::SetSize(quint8 size)
{
    if (size == FSize)
        return;
    FSize = size;
    DoUpdate();
}

void TqCustomCellLabel::SetCount(quint8 count)
{
    FCount = count;
    freeCells();   // always rebuilt whole, even for one cell more
    SetBounds(x(), y(), width(), height());
    const int pitch = CellSize().width();
    for (int i = 0; i < count; ++i) {
        TControl *cell = CreateCell(i);
        cell->move(i * pitch, 0);   // touching, no gap
        cell->SetColor(Color());
        cell->SetParentShowHint(true);
        cell->setVisible(true);
        routeEvents(cell);
        FCells[size_t(i)] = cell;
    }
    if (count != 0)
        DoCaption();
}

void TqCustomCellLabel::routeEvents(TControl *cell)
{
    // The coordinates stay the cell's own: a click on the third cell
    // reports X from 0 to the cell's width.
    connect(cell, &TControl::OnMouseDown, this, [this](QObject *, TMouseButton b, int shift, int x, int y) {
        emit OnMouseDown(this, b, shift, x, y);
    });
    connect(cell, &TControl::OnMouseUp, this, [this](QObject *, TMouseButton b, int shift, int x, int y) {
        emit OnMouseUp(this, b, shift, x, y);
    });
    connect(cell, &TControl::OnMouseMove, this, [this](QObject *, int shift, int x, int y) {
        emit OnMouseMove(this, shift, x, y);
    });
    connect(cell, &TControl::OnClick, this, [this](QObject *) { emit OnClick(this); });
    connect(cell, &TControl::OnDblClick, this, [this](QObject *) { emit OnDblClick(this); });
}

void TqCustomCellLabel::SetLitColor(TColor color)
{
    if (color == FLitColor)
        return;
    FLitColor = color;
    ForEachCell([this](TControl *cell) { ApplyColors(cell); });
}

void TqCustomCellLabel::SetUnLitColor(TColor color)
{
    if (color == FUnLitColor)
        return;
    FUnLitColor = color;
    ForEachCell([this](TControl *cell) { ApplyColors(cell); });
}

void TqCustomCellLabel::SetColor(TColor color)
{
    if (color == Color() && !ParentColor())
        return;
    TCustomControl::SetColor(color);
    ForEachCell([color](TControl *cell) { cell->SetColor(color); });
}

void TqCustomCellLabel::SetParentColor(bool parentColor)
{
    if (parentColor == ParentColor())
        return;
    TCustomControl::SetParentColor(parentColor);
    ForEachCell([parentColor](TControl *cell) { cell->SetParentColor(parentColor); });
}

void TqCustomCellLabel::SetVisible(bool visible)
{
    if (visible == Visible())
        return;
    TCustomControl::SetVisible(visible);
    ForEachCell([visible](TControl *cell) { cell->SetVisible(visible); });
}

// The cells cover the label; only a label without cells shows itself, and
// then it is empty. The background is never erased separately.
void TqCustomCellLabel::Paint(TCanvas &canvas)
{
    canvas.Brush.SetColor(Color());
    canvas.FillRect(ClientRect());
}
