#pragma once
// The colour button with an icon beside or above its caption (see
// qglyphbutton.h).

#include "buttons/qcolorbtn.h"
#include "buttons/qglyphbutton.h"

#include <QIcon>
#include <QPixmap>

class TqIconColBtn : public TGlyphButton<TqColorBtn>
{
    Q_OBJECT
    Q_PROPERTY(Buttons::TButtonLayout Layout READ Layout WRITE SetLayout)
    Q_PROPERTY(int Spacing READ Spacing WRITE SetSpacing)
    Q_PROPERTY(int Margin READ Margin WRITE SetMargin)
    Q_PROPERTY(QIcon Icon READ Icon WRITE SetIcon)
    Q_PROPERTY(int IconSize READ IconSize WRITE SetIconSize)

public:
    explicit TqIconColBtn(QWidget *parent = nullptr) : TGlyphButton<TqColorBtn>(parent) {}

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
