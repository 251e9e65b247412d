#pragma once
// Colours as the components store them: 0x00BBGGRR for plain colours; a value
// with the top bit set names a system colour (its low byte is the index) that
// is resolved through the application palette when it is drawn.

#include <QtGlobal>
#include <QColor>
#include <QPalette>
#include <QMetaProperty>
#include <QMetaType>
#include <QRgb>
#include <QString>
#include <QStringList>

// A colour value with a type of its own, so that properties of this type are
// known as colours (to Designer, to forms, to QVariant); it converts to and
// from the plain 32-bit number freely.
struct TColor
{
    quint32 value = 0;
    constexpr TColor() = default;
    constexpr TColor(quint32 v) : value(v) {}
    constexpr operator quint32() const { return value; }
};
Q_DECLARE_METATYPE(TColor)

constexpr TColor RGB(int r, int g, int b)
{
    return TColor(quint32(quint8(r)) | (quint32(quint8(g)) << 8) | (quint32(quint8(b)) << 16));
}
constexpr int GetRValue(TColor c) { return int(c & 0xFF); }
constexpr int GetGValue(TColor c) { return int((c >> 8) & 0xFF); }
constexpr int GetBValue(TColor c) { return int((c >> 16) & 0xFF); }

constexpr TColor clSystemColor = 0x80000000u;
constexpr bool IsSystemColor(TColor c) { return (c & clSystemColor) != 0; }

// Plain colours.
constexpr TColor clBlack   = 0x000000;
constexpr TColor clMaroon  = 0x000080;
constexpr TColor clGreen   = 0x008000;
constexpr TColor clOlive   = 0x008080;
constexpr TColor clNavy    = 0x800000;
constexpr TColor clPurple  = 0x800080;
constexpr TColor clTeal    = 0x808000;
constexpr TColor clGray    = 0x808080;
constexpr TColor clSilver  = 0xC0C0C0;
constexpr TColor clRed     = 0x0000FF;
constexpr TColor clLime    = 0x00FF00;
constexpr TColor clYellow  = 0x00FFFF;
constexpr TColor clBlue    = 0xFF0000;
constexpr TColor clFuchsia = 0xFF00FF;
constexpr TColor clAqua    = 0xFFFF00;
constexpr TColor clLtGray  = 0xC0C0C0;
constexpr TColor clDkGray  = 0x808080;
constexpr TColor clWhite   = 0xFFFFFF;
constexpr TColor clNone    = 0x1FFFFFFF;
constexpr TColor clDefault = 0x20000000;

// System colours (top bit + the platform's colour index).
constexpr TColor clScrollBar           = 0x80000000;
constexpr TColor clBackground          = 0x80000001;
constexpr TColor clActiveCaption       = 0x80000002;
constexpr TColor clInactiveCaption     = 0x80000003;
constexpr TColor clMenu                = 0x80000004;
constexpr TColor clWindow              = 0x80000005;
constexpr TColor clWindowFrame         = 0x80000006;
constexpr TColor clMenuText            = 0x80000007;
constexpr TColor clWindowText          = 0x80000008;
constexpr TColor clCaptionText         = 0x80000009;
constexpr TColor clActiveBorder        = 0x8000000A;
constexpr TColor clInactiveBorder      = 0x8000000B;
constexpr TColor clAppWorkSpace        = 0x8000000C;
constexpr TColor clHighlight           = 0x8000000D;
constexpr TColor clHighlightText       = 0x8000000E;
constexpr TColor clBtnFace             = 0x8000000F;
constexpr TColor clBtnShadow           = 0x80000010;
constexpr TColor clGrayText            = 0x80000011;
constexpr TColor clBtnText             = 0x80000012;
constexpr TColor clInactiveCaptionText = 0x80000013;
constexpr TColor clBtnHighlight        = 0x80000014;
constexpr TColor cl3DDkShadow          = 0x80000015;
constexpr TColor cl3DLight             = 0x80000016;
constexpr TColor clInfoText            = 0x80000017;
constexpr TColor clInfoBk              = 0x80000018;

// The plain 0x00BBGGRR value of a colour; system colours are looked up in
// the application palette (or the default palette without an application),
// or in the palette of a TSystemColorScope alive on this thread.
TColor ColorToRGB(TColor color);

// While one lives, system colours on this thread come from `palette`: a
// control paints in its own palette, which a style sheet may have set.
class TSystemColorScope
{
public:
    explicit TSystemColorScope(const QPalette &palette);
    ~TSystemColorScope();
    TSystemColorScope(const TSystemColorScope &) = delete;
    TSystemColorScope &operator=(const TSystemColorScope &) = delete;

private:
    const QPalette *FPrevious;
};

// The colour as Qt's 0xAARRGGBB, always opaque.
QRgb ColorToQRgb(TColor color);
inline QColor ColorToQColor(TColor color) { return QColor::fromRgb(ColorToQRgb(color)); }
TColor QColorToColor(const QColor &color);
inline TColor QRgbToColor(QRgb rgb) { return RGB(qRed(rgb), qGreen(rgb), qBlue(rgb)); }

// True for a property of type TColor.
bool IsColorProperty(const QMetaProperty &property);

// The framework's names: "clRed", "clBtnFace"; other values as "$00BBGGRR".
QString ColorToString(TColor color);
// Every name ColorToString gives, plain colours first, then the system colours.
QStringList ColorNames();
// Reads a name or a "$" hexadecimal value (or a plain number); false if it is neither.
bool StringToColor(const QString &text, TColor &color);

// How a colour property is kept in a form (.ui) file: a plain colour as
// itself, a system colour as the colour it shows now with an alpha of
// 254 - index, so the form reads back the system colour and a colour
// swatch still shows it. The conversions between TColor and QColor that
// QVariant, QUiLoader and uic use are these two.
QColor ColorToFormColor(TColor color);
TColor FormColorToColor(const QColor &color);

// a * b / c rounded half away from zero in 64-bit, as the platform's MulDiv;
// -1 when c is 0 or the result does not fit in 32 bits.
int MulDiv(int a, int b, int c);
