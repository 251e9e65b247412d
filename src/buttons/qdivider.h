#pragma once
// An etched line that divides a panel, horizontal or vertical, through the
// middle of the control; a horizontal one may carry a caption on the line
// (at its left, centre or right, on the control's colour). A vertical one
// has no caption.
//
// Properties (defaults): Kind (dkHorizontal), Caption (empty), Alignment
// (taLeftJustify), Color (the parent's), Font (the parent's), Width 150,
// Height 16.

#include "host/tcontrol.h"

class TqDivider : public TGraphicControl
{
    Q_OBJECT
    Q_PROPERTY(int Width READ Width WRITE SetWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(TqDividerKind Kind READ Kind WRITE SetKind)
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(Controls::TAlignment Alignment READ Alignment WRITE SetAlignment)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(bool ParentColor READ ParentColor WRITE SetParentColor)
    Q_PROPERTY(QFont Font READ Font WRITE SetFont)
    Q_PROPERTY(bool ParentFont READ ParentFont WRITE SetParentFont)
    Q_PROPERTY(Controls::TAlign Align READ Align WRITE SetAlign)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)

public:
    enum TqDividerKind { dkHorizontal, dkVertical };
    Q_ENUM(TqDividerKind)

    explicit TqDivider(QWidget *parent = nullptr);

    TqDividerKind Kind() const { return FKind; }
    void SetKind(TqDividerKind kind);
    QString Caption() const { return FCaption; }
    void SetCaption(const QString &caption);
    Controls::TAlignment Alignment() const { return FAlignment; }
    void SetAlignment(Controls::TAlignment alignment);

    QString Text() const override { return FCaption; }
    void SetText(const QString &text) override { SetCaption(text); }

    // Where the line lies: the row (horizontal) or column (vertical) of its
    // dark half; the light half follows it.
    int LinePosition() const;

protected:
    void Paint(TCanvas &canvas) override;

private:
    TqDividerKind FKind = dkHorizontal;
    QString FCaption;
    Controls::TAlignment FAlignment = taLeftJustify;
};
