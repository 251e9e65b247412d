#include "tcolor.h"

#include <QThread>

#include <array>

#include <QGuiApplication>
#include <QPalette>

namespace {

QColor systemColorOf(const QPalette &pal, int index)
{
    using R = QPalette::ColorRole;
    const auto active = [&](R role) { return pal.color(QPalette::Active, role); };
    const auto inactive = [&](R role) { return pal.color(QPalette::Inactive, role); };
    switch (index) {
    case 0:  return active(R::Mid);                 // scroll bar
    case 1:  return active(R::Dark);                // desktop
    case 2:  return active(R::Highlight);           // active caption
    case 3:  return inactive(R::Mid);               // inactive caption
    case 4:  return active(R::Window);              // menu
    case 5:  return active(R::Base);                // window
    case 6:  return active(R::Shadow);              // window frame
    case 7:  return active(R::WindowText);          // menu text
    case 8:  return active(R::Text);                // window text
    case 9:  return active(R::HighlightedText);     // caption text
    case 10: return active(R::Window);              // active border
    case 11: return inactive(R::Window);            // inactive border
    case 12: return active(R::Dark);                // MDI work space
    case 13: return active(R::Highlight);
    case 14: return active(R::HighlightedText);
    case 15: return active(R::Button);              // button face
    case 16: return active(R::Dark);                // button shadow
    case 17: return pal.color(QPalette::Disabled, R::Text);
    case 18: return active(R::ButtonText);
    case 19: return inactive(R::WindowText);        // inactive caption text
    case 20: return active(R::Light);               // button highlight
    case 21: return active(R::Shadow);              // 3D dark shadow
    case 22: return active(R::Midlight);            // 3D light
    case 23: return active(R::ToolTipText);
    case 24: return active(R::ToolTipBase);
    default: return active(R::Window);
    }
}

// The system colours of a palette, looked up once per palette (controls ask
// for them on every paint): made again when asked about another palette.
class SystemColorTable
{
public:
    static constexpr int kCount = 32;

    TColor at(const QPalette &palette, int index)
    {
        if (palette.cacheKey() != FKey) {
            for (int i = 0; i < kCount; ++i)
                FColors[size_t(i)] = QColorToColor(systemColorOf(palette, i));
            FKey = palette.cacheKey();
        }
        return FColors[size_t(index)];
    }

private:
    qint64 FKey = -1;
    std::array<TColor, kCount> FColors{};
};

// The palette of the scope alive on this thread, if any.
thread_local const QPalette *scopePalette = nullptr;

TColor systemColor(int index)
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return QColorToColor(systemColorOf(QPalette(QColor(0xF0, 0xF0, 0xF0)), index));
    const QPalette palette = scopePalette ? *scopePalette : QGuiApplication::palette();
    // Off the GUI thread, or an index beyond the table: straight from the palette.
    if (index < 0 || index >= SystemColorTable::kCount || QThread::currentThread() != qApp->thread())
        return QColorToColor(systemColorOf(palette, index));
    // One table for the application's palette and one for the controls'
    // own, so the two do not push each other out.
    static SystemColorTable application, own;
    return (scopePalette ? own : application).at(palette, index);
}

} // namespace

TSystemColorScope::TSystemColorScope(const QPalette &palette) : FPrevious(scopePalette)
{
    scopePalette = &palette;
}

TSystemColorScope::~TSystemColorScope()
{
    scopePalette = FPrevious;
}

namespace {

struct NamedColor
{
    const char *name;
    TColor color;
};

const NamedColor kNamedColors[] = {
    {"clBlack", clBlack}, {"clMaroon", clMaroon}, {"clGreen", clGreen}, {"clOlive", clOlive},
    {"clNavy", clNavy}, {"clPurple", clPurple}, {"clTeal", clTeal}, {"clGray", clGray},
    {"clSilver", clSilver}, {"clRed", clRed}, {"clLime", clLime}, {"clYellow", clYellow},
    {"clBlue", clBlue}, {"clFuchsia", clFuchsia}, {"clAqua", clAqua}, {"clWhite", clWhite},
    {"clNone", clNone}, {"clDefault", clDefault},
    {"clScrollBar", clScrollBar}, {"clBackground", clBackground},
    {"clActiveCaption", clActiveCaption}, {"clInactiveCaption", clInactiveCaption},
    {"clMenu", clMenu}, {"clWindow", clWindow}, {"clWindowFrame", clWindowFrame},
    {"clMenuText", clMenuText}, {"clWindowText", clWindowText}, {"clCaptionText", clCaptionText},
    {"clActiveBorder", clActiveBorder}, {"clInactiveBorder", clInactiveBorder},
    {"clAppWorkSpace", clAppWorkSpace}, {"clHighlight", clHighlight},
    {"clHighlightText", clHighlightText}, {"clBtnFace", clBtnFace}, {"clBtnShadow", clBtnShadow},
    {"clGrayText", clGrayText}, {"clBtnText", clBtnText},
    {"clInactiveCaptionText", clInactiveCaptionText}, {"clBtnHighlight", clBtnHighlight},
    {"cl3DDkShadow", cl3DDkShadow}, {"cl3DLight", cl3DLight}, {"clInfoText", clInfoText},
    {"clInfoBk", clInfoBk},
};

constexpr int kSystemAlphaTop = 254;
constexpr int kSystemColors = 25;

// Registers the conversions once, when the library is loaded.
const bool kConvertersRegistered = [] {
    QMetaType::registerConverter<TColor, QColor>(ColorToFormColor);
    QMetaType::registerConverter<QColor, TColor>(FormColorToColor);
    QMetaType::registerConverter<TColor, quint32>([](TColor c) { return c.value; });
    QMetaType::registerConverter<quint32, TColor>([](quint32 v) { return TColor(v); });
    QMetaType::registerConverter<TColor, int>([](TColor c) { return int(c.value); });
    QMetaType::registerConverter<int, TColor>([](int v) { return TColor(quint32(v)); });
    QMetaType::registerConverter<TColor, qlonglong>([](TColor c) { return qlonglong(c.value); });
    QMetaType::registerConverter<qlonglong, TColor>([](qlonglong v) { return TColor(quint32(v)); });
    QMetaType::registerConverter<TColor, QString>(ColorToString);
    QMetaType::registerConverter<QString, TColor>([](const QString &s) {
        TColor c;
        return StringToColor(s, c) ? c : TColor(clBlack);
    });
    return true;
}();

} // namespace

bool IsColorProperty(const QMetaProperty &property)
{
    return property.userType() == qMetaTypeId<TColor>();
}

QString ColorToString(TColor color)
{
    for (const NamedColor &n : kNamedColors)
        if (n.color == color)
            return QString::fromLatin1(n.name);
    return QStringLiteral("$%1").arg(quint32(color), 8, 16, QLatin1Char('0')).toUpper();
}

QStringList ColorNames()
{
    QStringList names;
    for (const NamedColor &n : kNamedColors)
        names << QString::fromLatin1(n.name);
    return names;
}

bool StringToColor(const QString &text, TColor &color)
{
    const QString t = text.trimmed();
    for (const NamedColor &n : kNamedColors)
        if (t.compare(QLatin1String(n.name), Qt::CaseInsensitive) == 0) {
            color = n.color;
            return true;
        }
    bool ok = false;
    const quint32 v = t.startsWith(QLatin1Char('$')) ? t.mid(1).toUInt(&ok, 16) : t.toUInt(&ok, 0);
    if (ok)
        color = v;
    return ok;
}

QColor ColorToFormColor(TColor color)
{
    QColor c = QColor::fromRgb(ColorToQRgb(color));
    if (IsSystemColor(color) && int(color & 0xFF) < kSystemColors)
        c.setAlpha(kSystemAlphaTop - int(color & 0xFF));
    return c;
}

TColor FormColorToColor(const QColor &color)
{
    // The mark of a system colour counts only on that colour as it is: a
    // colour picked in a dialog that kept the mark is the colour picked.
    const int index = kSystemAlphaTop - color.alpha();
    if (color.alpha() < 255 && index >= 0 && index < kSystemColors) {
        const TColor system = clSystemColor | quint32(index);
        if (qRgb(color.red(), color.green(), color.blue()) == ColorToQRgb(system))
            return system;
    }
    return QColorToColor(color);
}

TColor ColorToRGB(TColor color)
{
    if (IsSystemColor(color))
        return systemColor(int(color & 0xFF));
    return color & 0x00FFFFFFu;
}

QRgb ColorToQRgb(TColor color)
{
    const TColor c = ColorToRGB(color);
    return qRgb(GetRValue(c), GetGValue(c), GetBValue(c));
}

TColor QColorToColor(const QColor &color)
{
    return RGB(color.red(), color.green(), color.blue());
}

int MulDiv(int a, int b, int c)
{
    if (c == 0)
        return -1;
    const qint64 num = qint64(a) * qint64(b);
    const bool negative = (num < 0) != (c < 0);
    const quint64 an = quint64(num < 0 ? -num : num);
    const quint64 ac = quint64(c < 0 ? -qint64(c) : qint64(c));
    const quint64 q = (an + ac / 2) / ac;   // half away from zero
    if (q > quint64(INT_MAX) + (negative ? 1 : 0))
        return -1;
    return negative ? int(-qint64(q)) : int(q);
}
