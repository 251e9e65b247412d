#pragma once
// The colour button with an icon beside or above its caption (see
// qglyphbutton.h).

#include "buttons/qcolorbtn.h"
#include "buttons/qglyphbutton.h"

class TqIconColBtn : public TIconGlyphButton<TqColorBtn>
{
    Q_OBJECT
    Q_PROPERTY(Buttons::TButtonLayout Layout READ Layout WRITE SetLayout)
    Q_PROPERTY(int Spacing READ Spacing WRITE SetSpacing)
    Q_PROPERTY(int Margin READ Margin WRITE SetMargin)
    Q_PROPERTY(QIcon Icon READ Icon WRITE SetIcon)
    Q_PROPERTY(int IconSize READ IconSize WRITE SetIconSize)

public:
    explicit TqIconColBtn(QWidget *parent = nullptr) : TIconGlyphButton<TqColorBtn>(parent) {}
};
