#pragma once
// The non-windowed colour button with an icon (see qglyphbutton.h).

#include "buttons/qnwcolorbtn.h"
#include "buttons/qglyphbutton.h"

#include <QIcon>
#include <QPixmap>

class TqNWIconColBtn : public TGlyphButton<TqNWColorBtn>
{
    Q_OBJECT
    Q_PROPERTY(Buttons::TButtonLayout Layout READ Layout WRITE SetLayout)
    Q_PROPERTY(int Spacing READ Spacing WRITE SetSpacing)
    Q_PROPERTY(int Margin READ Margin WRITE SetMargin)
    Q_PROPERTY(QIcon Icon READ Icon WRITE SetIcon)
    Q_PROPERTY(int IconSize READ IconSize WRITE SetIconSize)

public:
    explicit TqNWIconColBtn(QWidget *parent = nullptr) : TGlyphButton<TqNWColorBtn>(parent) {}

    // The icon, drawn at IconSize pixels (the icon's nearest size).
    QIcon Icon() const { return FIcon; }
    void SetIcon(const QIcon &icon);
    int IconSize() const { return FIconSize; }
    void SetIconSize(int size);

protected:
    QImage GlyphImage(bool) const override { return FImage; }
    bool GlyphHasAlpha() const override { return true; }

private:
    void pick();
    QIcon FIcon;
    int FIconSize = 16;
    QImage FImage;
};
