#pragma once
// The non-windowed colour button with an icon (see qglyphbutton.h).

#include "buttons/qnwcolorbtn.h"
#include "buttons/qglyphbutton.h"

class TqNWIconColBtn : public TIconGlyphButton<TqNWColorBtn>
{
    Q_OBJECT
    Q_PROPERTY(Buttons::TButtonLayout Layout READ Layout WRITE SetLayout)
    Q_PROPERTY(int Spacing READ Spacing WRITE SetSpacing)
    Q_PROPERTY(int Margin READ Margin WRITE SetMargin)
    Q_PROPERTY(QIcon Icon READ Icon WRITE SetIcon)
    Q_PROPERTY(int IconSize READ IconSize WRITE SetIconSize)

public:
    explicit TqNWIconColBtn(QWidget *parent = nullptr) : TIconGlyphButton<TqNWColorBtn>(parent) {}
};
