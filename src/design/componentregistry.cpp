#include "componentregistry.h"

#include "backgrounds/blend.h"
#include "buttons/qanimate.h"
#include "displays/qseg.h"
#include "host/tcontrol.h"
#include "indicators/qgauge.h"
#include "indicators/qled.h"
#include "instruments/qpanel.h"
#include "labels/labels.h"
#include "layout/qsplit.h"
#include "layout/qtablistbox.h"
#include "services/mystd.h"
#include "slidebar/slidebar.h"
#include "services/std2.h"

#include <QPainter>
#include <QTime>

#include <cmath>
#include <type_traits>

namespace {

template <class T>
QWidget *make(QWidget *parent)
{
    return new T(parent);
}

// A small landscape: sky, sun and a hill, for the picture components.
QPixmap samplePicture(int w, int h)
{
    QImage image(w, h, QImage::Format_RGB32);
    image.fill(qRgb(96, 160, 224));
    QPainter p(&image);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 208, 0));
    p.drawEllipse(QPoint(w / 2, h * 2 / 5), h / 5, h / 5);
    p.setBrush(QColor(40, 150, 40));
    p.drawEllipse(QPoint(w / 3, h + h / 5), w * 2 / 3, h / 2);
    return QPixmap::fromImage(image);
}

// A riveted metal plate, for the tile maps: its face, its seams and its
// rivet.
QPixmap sampleTile(QRgb face, QRgb seam, QRgb rivet)
{
    QImage image(12, 12, QImage::Format_RGB32);
    image.fill(face);
    QPainter p(&image);
    p.setPen(QColor(seam));
    p.drawLine(0, 11, 11, 11);
    p.drawLine(11, 0, 11, 11);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(rivet));
    p.drawEllipse(QPoint(5, 5), 2, 2);
    return QPixmap::fromImage(image);
}

void poseBitmap(QWidget *w)
{
    auto *bitmap = static_cast<TqBitmap *>(w);
    bitmap->SetBounds(0, 0, 48, 36);
    bitmap->SetBitmap(samplePicture(48, 36));
}

// Four frames of a ball that moves across, showing the second.
void poseAnimated(QWidget *w)
{
    QImage strip(4 * 36, 36, QImage::Format_RGB32);
    strip.fill(qRgb(255, 255, 255));
    QPainter p(&strip);
    p.setPen(Qt::NoPen);
    for (int i = 0; i < 4; ++i) {
        p.setBrush(QColor(220, 60, 40));
        p.drawEllipse(QPoint(i * 36 + 8 + i * 6, 18), 7, 7);
        p.setBrush(QColor(200, 200, 200));
        p.drawRect(i * 36, 30, 36, 6);
    }
    p.end();
    auto *animated = static_cast<TqAnimated *>(w);
    animated->SetBitmap(QPixmap::fromImage(strip));
    animated->SetFrames(4);
    animated->SetFrame(1);
}

// Steel for the windowed map; the twin without a window (below) in bronze.
template <class Map>
void poseTileMap(QWidget *w, const QPixmap &tile)
{
    auto *map = static_cast<Map *>(w);
    map->SetBounds(0, 0, 48, 36);
    map->SetBitmap(tile);
}

void poseSteelTileMap(QWidget *w)
{
    poseTileMap<TqTileMap>(w, sampleTile(qRgb(150, 150, 160), qRgb(90, 90, 100), qRgb(60, 60, 70)));
}

// The twins without a window of their own: the blend across, the plate
// of another metal, the button named so.
void poseNWBlendPaint(QWidget *w) { static_cast<TqNWBlendPaint *>(w)->SetGrad(gHorz); }

void poseBronzeTileMap(QWidget *w)
{
    poseTileMap<TqNWTileMap>(w, sampleTile(qRgb(210, 150, 80), qRgb(150, 90, 50), qRgb(120, 60, 35)));
}

void posePeakOmeter(QWidget *w)
{
    auto *meter = static_cast<TqcPeakOmeter *>(w);
    meter->SetBounds(0, 0, 20, 48);
    meter->SetBlocks(8);
    meter->Push(80);
}

// A frame round a lamp, as frames group controls.
void poseFrame(QWidget *w)
{
    auto *frame = static_cast<TqFrame *>(w);
    frame->SetBounds(0, 0, 40, 30);
    frame->SetShape(TqFrame::fsFrame);
    auto *lamp = new TqLed(frame);
    lamp->SetBounds(12, 7, 17, 17);
    lamp->WriteLedColor(TqLed::lctGreen);
    lamp->writeLedOn(true);
    lamp->show();
}

void poseDivider(QWidget *w)
{
    auto *divider = static_cast<TqDivider *>(w);
    divider->SetBounds(0, 0, 60, 20);
    divider->SetCaption(QStringLiteral("Div"));
}


template <class Split>
void poseSplit(QWidget *w)
{
    auto *split = static_cast<Split *>(w);
    split->SetBounds(0, 0, 48, 48);
    split->SetNewLook(true);
    split->GoMedium();
}

// A short caption in a large bold font.
template <class Control>
void poseCaption(QWidget *w, const char *caption, int pixels)
{
    auto *control = static_cast<Control *>(w);
    QFont f = control->Font();
    f.setPixelSize(pixels);
    f.setBold(true);
    control->SetFont(f);
    control->SetCaption(QString::fromLatin1(caption));
}

void pose3DLabel(QWidget *w) { poseCaption<Tq3DLabel>(w, "3D", 20); }
void poseMouseSpot(QWidget *w) { poseCaption<TqMouseSpot>(w, "Go", 20); }

void poseMovePanel(QWidget *w)
{
    static_cast<TqMovePanel *>(w)->SetBounds(0, 0, 48, 36);
    poseCaption<TqMovePanel>(w, "+", 24);
}

// A tick, for the glyph buttons.
QPixmap sampleGlyph(TColor color)
{
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setPen(QPen(QColor(ColorToQRgb(color)), 3));
    p.drawLine(2, 8, 6, 12);
    p.drawLine(6, 12, 13, 3);
    return QPixmap::fromImage(image);
}

// The tick as the button's icon or bitmap glyph, whichever it has.
template <class Button>
void poseGlyphButton(QWidget *w, const char *caption, TColor color)
{
    auto *b = static_cast<Button *>(w);
    b->SetBounds(0, 0, 60, 30);
    b->SetCaption(QString::fromLatin1(caption));
    if constexpr (std::is_base_of_v<TqIconColBtn, Button> || std::is_base_of_v<TqNWIconColBtn, Button>)
        b->SetIcon(QIcon(sampleGlyph(color)));
    else
        b->SetGlyph(sampleGlyph(color));
}

void poseBitColBtn(QWidget *w) { poseGlyphButton<TqBitColBtn>(w, "Bit", clGreen); }
void poseIconColBtn(QWidget *w) { poseGlyphButton<TqIconColBtn>(w, "Icon", clBlue); }
void poseNWBitColBtn(QWidget *w) { poseGlyphButton<TqNWBitColBtn>(w, "NW", clGreen); }
void poseNWIconColBtn(QWidget *w) { poseGlyphButton<TqNWIconColBtn>(w, "NW", clBlue); }

void poseSegment(QWidget *w) { static_cast<TqSegment *>(w)->SetChar('8'); }
void poseDotSegment(QWidget *w) { static_cast<TqcDotSegment *>(w)->SetChar('A'); }

void poseSegmentLabel(QWidget *w)
{
    auto *label = static_cast<TqSegmentLabel *>(w);
    label->SetElements(3);
    label->SetCaption(QStringLiteral("1.8"));
}

void poseDotLabel(QWidget *w)
{
    auto *label = static_cast<TqcDotLabel *>(w);
    label->SetElements(2);
    label->SetCaption(QStringLiteral("Ab"));
}

void poseSegmentClock(QWidget *w)
{
    auto *clock = static_cast<TqSegmentClock *>(w);
    clock->SetCaption(QStringLiteral("12:00"));
}

void poseDotClock(QWidget *w)
{
    auto *clock = static_cast<TqcDotClock *>(w);
    clock->Timer()->SetEnabled(false);
    clock->SetCaption(QStringLiteral("12:00"));
}

void poseLed(QWidget *w)
{
    auto *led = static_cast<TqLed *>(w);
    led->SetBounds(0, 0, 34, 34);
    led->writeLedOn(true);
}

void poseGauge(QWidget *w)
{
    auto *gauge = static_cast<TqGauge *>(w);
    gauge->SetValue(60);
    gauge->SetCaption(QStringLiteral("%d%%"));
}

void poseScope(QWidget *w)
{
    auto *scope = static_cast<TqScope *>(w);
    scope->SetBounds(0, 0, 60, 40);
    scope->SetStepX(12);
    scope->SetStepY(25);
    for (int i = 0; i < 60; ++i) {
        scope->SetIn1(50 + int(40 * std::sin(i / 4.0)));
        scope->Push();
    }
}

void poseTabListbox(QWidget *w)
{
    auto *box = static_cast<TqTabListbox *>(w);
    box->SetTabStops(QStringLiteral("14"));
    box->SetItems({QStringLiteral("1\tA"), QStringLiteral("2\tB"), QStringLiteral("3\tC")});
    box->SetItemIndex(1);
}

void poseBigLabel(QWidget *w)
{
    auto *label = static_cast<TqBigLabel *>(w);
    label->SetShadowDepth(2);
    label->SetCaption(QStringLiteral("A"));
}

void poseAngleLabel(QWidget *w)
{
    auto *label = static_cast<TqAngleLabel *>(w);
    QFont f = label->Font();
    f.setPointSize(14);
    f.setBold(true);
    label->SetFont(f);
    label->SetCaption(QStringLiteral("ab"));
    label->SetAngle(45);
}

void posePanelMeter(QWidget *w) { static_cast<TqPanelMeter *>(w)->SetValue(65); }

template <class Button>
void poseButton(QWidget *w)
{
    auto *b = static_cast<Button *>(w);
    b->SetBounds(0, 0, 60, 30);
    b->SetCaption(QStringLiteral("OK"));
}

void poseNWColorBtn(QWidget *w)
{
    poseButton<TqNWColorBtn>(w);
    static_cast<TqNWColorBtn *>(w)->SetCaption(QStringLiteral("NW"));
}

void poseGradBtn(QWidget *w)
{
    poseButton<TqGradBtn>(w);
    auto *b = static_cast<TqGradBtn *>(w);
    b->SetColor(clNavy);
    b->SetEndColor(clAqua);
    b->SetFontColor(clWhite);
}

void poseShapeBtn(QWidget *w) { static_cast<TqShapeBtn *>(w)->SetShape(TqShapeBtn::sbUpTriangle); }

void poseKnob(QWidget *w) { static_cast<TqKnob *>(w)->SetKnobValue(70); }

void poseDblKnob(QWidget *w)
{
    auto *knob = static_cast<TqDblKnob *>(w);
    knob->SetKnobValue(25);
    knob->SetKnobValue2(75);
}

void poseTripKnob(QWidget *w)
{
    auto *knob = static_cast<TqTripKnob *>(w);
    knob->SetKnobValue(20);
    knob->SetKnobValue2(60);
    knob->SetKnobValue3(90);
}

void poseSlideBar(QWidget *w)
{
    auto *bar = static_cast<TqSlideBar *>(w);
    bar->SetBounds(0, 0, 60, 24);
    bar->SetPosition(6);
}

// Widget-box order: the pages in order, within a page the order of the
// palette rows; the tray icon closes the second page.
const std::vector<TComponentEntry> kComponents = {
    {"TqTabListbox", "layout/qtablistbox.h", 0, 5, "Tabbed list box",
     "A list box whose items are rows of columns: each item is split at its tab characters "
     "and the parts are drawn at tab stops set in pixels or characters.",
     make<TqTabListbox>, poseTabListbox, true},
    {"TqBitmap", "buttons/qanimate.h", 0, 6, "Picture",
     "A picture at its size, centred, or stretched (keeping its proportions if asked); the "
     "transparent colour can let what lies beneath show.",
     make<TqBitmap>, poseBitmap, true},
    {"TqAnimated", "buttons/qanimate.h", 0, 7, "Animation",
     "Frames cut from a strip, shown one after the other at an interval, once or in a loop.",
     make<TqAnimated>, poseAnimated, true},
    {"TqBackground", "backgrounds/blend.h", 0, 8, "Form background",
     "Gives the client area of its form a wallpaper: a tiled bitmap, a colour blend in bands or "
     "rings, or the steel texture, painted behind the form's controls. Invisible at run time.",
     make<TqBackground>, nullptr, false},
    {"TqBlendPaint", "backgrounds/blend.h", 0, 9, "Blend painter",
     "A control filled with a colour blend top to bottom, left to right or in rings, or with "
     "the steel texture.",
     make<TqBlendPaint>, nullptr, true},
    {"TqNWBlendPaint", "backgrounds/blend.h", 0, 41, "Blend painter without a window",
     "The blend painter without a window of its own; with PassMouseOn the mouse goes through it "
     "to what lies beneath.",
     make<TqNWBlendPaint>, poseNWBlendPaint, true},
    {"TqTileMap", "backgrounds/blend.h", 0, 10, "Tile map",
     "A control tiled with a bitmap from its top-left corner.",
     make<TqTileMap>, poseSteelTileMap, true},
    {"TqNWTileMap", "backgrounds/blend.h", 0, 42, "Tile map without a window",
     "The tile map without a window of its own; with PassMouseOn the mouse goes through it to "
     "what lies beneath.",
     make<TqNWTileMap>, poseBronzeTileMap, true},
    {"TqLed", "indicators/qled.h", 0, 11, "LED lamp",
     "A round or square LED in eight colours, lit or unlit, with a grey bezel, optionally "
     "on the steel texture; it can blink by itself.",
     make<TqLed>, poseLed, true},
    {"TqSegment", "displays/qseg.h", 0, 12, "Sixteen-segment character",
     "One character cell with sixteen segments, a decimal point and a colon, in 15 sizes "
     "and any lit and unlit colour.",
     make<TqSegment>, poseSegment, true},
    {"TqSegmentLabel", "displays/qseg.h", 0, 13, "Row of sixteen-segment characters",
     "A row of segment cells showing a caption; decimal points and colons fold into the "
     "cell before them.",
     make<TqSegmentLabel>, poseSegmentLabel, true},
    {"TqSegmentClock", "displays/qseg.h", 0, 14, "Segment clock",
     "The time of day on segment cells, with or without seconds, ticked by its own "
     "threaded timer.",
     make<TqSegmentClock>, poseSegmentClock, true},
    {"TqcPeakOmeter", "displays/qseg.h", 0, 48, "Peak-level meter",
     "An audio-style level meter of LED blocks in green, yellow and red zones, with a peak "
     "marker that holds and then falls; fed by Value or Push.",
     make<TqcPeakOmeter>, posePeakOmeter, true},
    {"TqcDotSegment", "displays/qseg.h", 0, 45, "Dot-matrix character",
     "One 7 x 9 dot-matrix character cell with round, square or rounded dots, in 25 sizes.",
     make<TqcDotSegment>, poseDotSegment, true},
    {"TqcDotLabel", "displays/qseg.h", 0, 46, "Row of dot-matrix characters",
     "A row of dot-matrix cells showing a caption, one character a cell.",
     make<TqcDotLabel>, poseDotLabel, true},
    {"TqcDotClock", "displays/qseg.h", 0, 47, "Dot-matrix clock",
     "The time of day on dot-matrix cells, with or without seconds.",
     make<TqcDotClock>, poseDotClock, true},
    {"TqGauge", "indicators/qgauge.h", 0, 15, "Gauge",
     "A value between Min and Max as a bar filled from the left, continuous with a formatted "
     "caption or as a row of LED-like blocks, plain or cut from a tiled picture.",
     make<TqGauge>, poseGauge, true},
    {"TqFrame", "buttons/qanimate.h", 0, 17, "Frame",
     "A lowered or raised box, an etched frame, or an etched line along one edge, for grouping "
     "controls on a panel.",
     make<TqFrame>, poseFrame, true},
    {"TqDivider", "buttons/qanimate.h", 0, 18, "Divider",
     "An etched line across a panel, horizontal or vertical; a horizontal one may carry a "
     "caption.",
     make<TqDivider>, poseDivider, true},
    {"TqMovePanel", "services/mystd.h", 0, 19, "Move panel",
     "A panel the user drags inside its parent; it can stick to an edge by placement or by "
     "alignment, and OnBeforeUpdate may change or refuse each move.",
     make<TqMovePanel>, poseMovePanel, true, "", true},
    {"TqScope", "instruments/qpanel.h", 0, 32, "Trace display",
     "Two channels of pushed samples drawn as scrolling beams over a grid, the newest at "
     "the right edge.",
     make<TqScope>, poseScope, true},
    {"TqVerSplit", "layout/qsplit.h", 0, 23, "Splitter panel, vertical bar",
     "A panel divided by a bar that moves left and right; the controls on either side move "
     "with the bar. WhereSplit is the bar's left edge.",
     make<TqVerSplit>, poseSplit<TqVerSplit>, true, "", true},
    {"TqHorSplit", "layout/qsplit.h", 0, 24, "Splitter panel, horizontal bar",
     "A panel divided by a bar that moves up and down; the controls above and below it move "
     "with the bar. WhereSplit is the bar's top edge.",
     make<TqHorSplit>, poseSplit<TqHorSplit>, true, "", true},
    {"TqPanelMeter", "instruments/qpanel.h", 0, 33, "Needle meter",
     "An analogue panel meter: round scale with a needle, or an edgewise scale with a "
     "pointer, with an alert zone that raises events when the value crosses it.",
     make<TqPanelMeter>, posePanelMeter, true},
    {"TqCalc", "services/mystd.h", 1, 26, "Expression calculator",
     "Evaluates a line of arithmetic with functions, constants and nine result registers "
     "whenever CalcLine is assigned. Invisible at run time.",
     make<TqCalc>, nullptr, false,
     // Registers F to J keep an ordinary editor: TqCalc drops what is written to them.
     "NumberNum,Number,RegisterA,RegisterB,RegisterC,RegisterD,CalcResult,WhereIsLastError"},
    {"TqMinMax", "services/std2.h", 1, 1, "Size guard",
     "Limits the size of the form it is on while the user drags it, and its place and size "
     "when maximised, around the taskbar if asked; the program may adjust each query. "
     "Invisible at run time.",
     make<TqMinMax>, nullptr, false},
    {"TqHint", "labels/labels.h", 1, 21, "Hint window",
     "Shows the application's tips in a window of its own look: colours, font, frame, shadow, "
     "and a rectangle, rounded or balloon shape; sets when tips show and how long they stay. "
     "Invisible at run time.",
     make<TqHint>, nullptr, false},
    {"TqShowApp", "services/mystd.h", 1, 22, "Application information",
     "Facts about the machine and the process, the application's title, icon and hint "
     "settings, single instance with a hand-over to the first, end-of-session events and the "
     "short date format. Invisible at run time.",
     make<TqShowApp>, nullptr, false,
     "WinDir,SystemDir,EnvironmentLines,WindowKind,WinVerMajor,WinVerMinor,WinVerBuild,WindowsString,"
     "CPUType,CPUString,ComputerName,UserName,IPHostName,IPHostAddress"},
    {"TqSplashForm", "services/mystd.h", 1, 43, "Splash form",
     "A picture with a caption in the middle of the screen while the application starts: it "
     "goes once its form has shown and a minimum time has passed, or on a click. Invisible "
     "at run time.",
     make<TqSplashForm>, nullptr, false},
    {"TqTitleBar", "services/mystd.h", 1, 20, "Title bar",
     "Hides and shows the title bar of the form it is on, keeping its client area; while the "
     "title bar is hidden the form is dragged by its client area. Invisible at run time.",
     make<TqTitleBar>, nullptr, false},
    {"TqCompCanvas", "services/std2.h", 1, 44, "Component canvas",
     "Lends the program a canvas over another control between StartPaint and EndPaint; what is "
     "drawn stays until the control paints itself again. Invisible at run time.",
     make<TqCompCanvas>, nullptr, false},
    {"TqcTimer", "services/std2.h", 1, 49, "Threaded timer",
     "A timer that sleeps in a worker thread of its own and raises OnTimer on the GUI "
     "thread. Invisible at run time.",
     make<TqcTimer>, nullptr, false},
    {"TqcRunProg", "services/std2.h", 1, 50, "Program runner",
     "Starts another program from a command line (split as a shell would, without a shell) and "
     "waits for it while the interface goes on, or not at all; failures come as result codes. "
     "Invisible at run time.",
     make<TqcRunProg>, nullptr, false},
    {"TqTrayIcon", "services/mystd.h", 1, 37, "Tray icon",
     "An icon with a tool tip in the desktop's notification area: clicks, double-clicks and "
     "moves as events, a menu for each button, the default action on a double-click, and the "
     "form it is on hidden if asked. Invisible at run time.",
     make<TqTrayIcon>, nullptr, false},
    {"TqBigLabel", "labels/labels.h", 2, 2, "Big label",
     "A large caption with an outline round its letters and a shadow beneath them.",
     make<TqBigLabel>, poseBigLabel, true},
    {"Tq3DLabel", "labels/labels.h", 2, 3, "3D label",
     "A caption raised from the panel or pressed into it, with highlight and shadow colours and "
     "a depth.",
     make<Tq3DLabel>, pose3DLabel, true},
    {"TqAngleLabel", "labels/labels.h", 2, 4, "Angle label",
     "A caption drawn at any angle, turning about its centre or one of its ends, the control "
     "sized to hold it.",
     make<TqAngleLabel>, poseAngleLabel, true},
    {"TqShapeBtn", "buttons/qanimate.h", 2, 27, "Shape button",
     "A push button shaped as a rectangle, a triangle, a plus, a minus, an ellipse or a shape "
     "of the application's; a press outside the shape goes to what lies beneath.",
     make<TqShapeBtn>, poseShapeBtn, true},
    {"TqColorBtn", "buttons/qanimate.h", 2, 28, "Colour button",
     "A push button in any face colour with a two-pixel bevel, the caption at nine places and "
     "a flat mode; the form's default and cancel button, with a modal result.",
     make<TqColorBtn>, poseButton<TqColorBtn>, true},
    {"TqGradBtn", "buttons/qanimate.h", 2, 29, "Gradient button",
     "The colour button with a face blended from Color to EndColor, in bands or rings.",
     make<TqGradBtn>, poseGradBtn, true},
    {"TqBitColBtn", "buttons/qanimate.h", 2, 30, "Bitmap colour button",
     "The colour button with a bitmap glyph beside or above its caption; the glyph's "
     "bottom-left colour is see-through, and it greys when the button is disabled.",
     make<TqBitColBtn>, poseBitColBtn, true},
    {"TqIconColBtn", "buttons/qanimate.h", 2, 31, "Icon colour button",
     "The colour button with an icon beside or above its caption, drawn at the size asked for.",
     make<TqIconColBtn>, poseIconColBtn, true},
    {"TqMouseSpot", "labels/labels.h", 2, 25, "Link label",
     "A caption that takes another colour, an underline and the pointing hand while the mouse "
     "is over it, and clicks.",
     make<TqMouseSpot>, poseMouseSpot, true},
    {"TqKnob", "instruments/qpanel.h", 2, 34, "Rotary knob",
     "A shaded, round knob whose pointer shows a value; the value follows the mouse angle "
     "around the centre, or the keyboard.",
     make<TqKnob>, poseKnob, true},
    {"TqDblKnob", "instruments/qpanel.h", 2, 35, "Double knob",
     "A rotary knob with an inner disc of its own value: the mouse picks a disc where it is "
     "pressed, Shift picks the inner one from the keyboard.",
     make<TqDblKnob>, poseDblKnob, true},
    {"TqTripKnob", "instruments/qpanel.h", 2, 36, "Triple knob",
     "A rotary knob with three concentric discs, each with its own value; Ctrl picks the "
     "innermost from the keyboard.",
     make<TqTripKnob>, poseTripKnob, true},
    {"TqSlideBar", "slidebar/slidebar.h", 2, 16, "Slide bar",
     "A slider with tick marks and a thumb in one of sixteen shapes, horizontal or vertical "
     "by its shape, set by dragging, clicking beside the thumb or the keyboard.",
     make<TqSlideBar>, poseSlideBar, true},
    {"TqNWColorBtn", "buttons/qanimate.h", 2, 38, "Colour button without a window",
     "The colour button as a graphic control: no focus, but it can be transparent, "
     "optionally lightened by a grey glass.",
     make<TqNWColorBtn>, poseNWColorBtn, true},
    {"TqNWBitColBtn", "buttons/qanimate.h", 2, 39, "Bitmap colour button without a window",
     "The non-windowed colour button with a bitmap glyph beside or above its caption.",
     make<TqNWBitColBtn>, poseNWBitColBtn, true},
    {"TqNWIconColBtn", "buttons/qanimate.h", 2, 40, "Icon colour button without a window",
     "The non-windowed colour button with an icon beside or above its caption.",
     make<TqNWIconColBtn>, poseNWIconColBtn, true},
};

// Classes of the collection that are not in the widget box: made in code.
const std::vector<TComponentEntry> kCodeOnly = {
    {"TqResBitmap", "buttons/qanimate.h", kCodeOnlyPage, 0, "Picture from the resources",
     "The picture control with its picture loaded by name from the application's Qt resources; "
     "a missing name leaves it empty and says so through OnResourceMissing.",
     make<TqResBitmap>, nullptr, true},
    {"TqDesktop", "buttons/qanimate.h", kCodeOnlyPage, 0, "Desktop behind the form",
     "Shows the part of the screen it covers, taken before its form first shows; where the "
     "window system gives no picture of the screen it shows its colour.",
     make<TqDesktop>, nullptr, true},
};

} // namespace

QString PageName(int page)
{
    switch (page) {
    case 0: return QStringLiteral("QuovarSoft");
    case 1: return QStringLiteral("QuovarSoft II");
    case 2: return QStringLiteral("QuovarSoft III");
    default: return QStringLiteral("Made in code");
    }
}

const std::vector<TComponentEntry> &Components() { return kComponents; }

const TComponentEntry *FindComponent(const QString &className)
{
    for (const TComponentEntry &e : kComponents)
        if (className == QLatin1String(e.className))
            return &e;
    return nullptr;
}

const TComponentEntry *FindComponent(const QObject *object)
{
    return FindComponent(QString::fromLatin1(object->metaObject()->className()));
}

std::vector<TComponentEntry> AllComponents()
{
    std::vector<TComponentEntry> all = kComponents;
    all.insert(all.end(), kCodeOnly.begin(), kCodeOnly.end());
    return all;
}

QStringList ReadOnlyProperties(const TComponentEntry &entry)
{
    return QString::fromLatin1(entry.readOnlyProperties).split(QLatin1Char(','), Qt::SkipEmptyParts);
}

namespace {
QWidget *createDesigning(const TComponentEntry &entry, QWidget *parent)
{
    DesignTimeCreation designing;
    return entry.create(parent);
}
} // namespace

std::unique_ptr<QWidget> CreateAlone(const TComponentEntry &entry, bool designing)
{
    // A component always has a form: it is made on a scratch one, then
    // taken off it.
    QWidget form;
    QWidget *w = designing ? createDesigning(entry, &form) : entry.create(&form);
    w->setParent(nullptr);
    return std::unique_ptr<QWidget>(w);
}

QWidget *CreateForDesigner(const TComponentEntry &entry, QWidget *parent)
{
    QWidget *w = parent ? createDesigning(entry, parent) : CreateAlone(entry, true).release();
    if (auto *core = dynamic_cast<TComponentCore *>(w))
        core->QueueLoaded();
    return w;
}

std::unique_ptr<QWidget> CreateSample(const TComponentEntry &entry)
{
    std::unique_ptr<QWidget> w = CreateAlone(entry, true);
    if (w->size().isEmpty())
        w->resize(w->sizeHint());
    return w;
}
