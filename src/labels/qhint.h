#pragma once
// The application's tips in a window of the panel's own look. While an
// active TqHint exists (and the form is not being designed), every tip of
// the application shows in its window: Color with a FrameColor line round
// it, the text in Font and FontColor, wrapped at MaxWidth, Margin pixels
// from the frame; the shape a rectangle, a rectangle with corners rounded
// at RoundSize, or a balloon whose tail points at the mouse; with Shadow, a
// copy of the shape in ShadowColor ShadowDepth pixels down and right. When a
// tip shows and how long it stays are the application's HintPause and
// HintHidePause, which Pause and HidePause set. The tip goes when the mouse
// leaves the control, a button or key is pressed, or the time is up. The
// latest active TqHint wins; when it goes, the one before takes over again,
// and with none left the ordinary tool tip returns.
//
// Properties (defaults): Active (true), Color (clInfoBk), FontColor
// (clInfoText), Font, FrameColor (clBlack), Shape (hsRectangle), RoundSize
// (12), Shadow (true), ShadowColor (clGray), ShadowDepth (4), Margin (4),
// MaxWidth (300), Pause (700), HidePause (10000).

#include "host/tcolor.h"
#include "host/tcomponent.h"

#include <QFont>
#include <QPointer>

#include <memory>

class TqHintWindow;

class TqHint : public TComponent
{
    Q_OBJECT
    Q_PROPERTY(bool Active READ Active WRITE SetActive)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(TColor FontColor READ FontColor WRITE SetFontColor)
    Q_PROPERTY(QFont Font READ Font WRITE SetFont)
    Q_PROPERTY(TColor FrameColor READ FrameColor WRITE SetFrameColor)
    Q_PROPERTY(TqHintShape Shape READ Shape WRITE SetShape)
    Q_PROPERTY(int RoundSize READ RoundSize WRITE SetRoundSize)
    Q_PROPERTY(bool Shadow READ Shadow WRITE SetShadow)
    Q_PROPERTY(TColor ShadowColor READ ShadowColor WRITE SetShadowColor)
    Q_PROPERTY(int ShadowDepth READ ShadowDepth WRITE SetShadowDepth)
    Q_PROPERTY(int Margin READ Margin WRITE SetMargin)
    Q_PROPERTY(int MaxWidth READ MaxWidth WRITE SetMaxWidth)
    Q_PROPERTY(int Pause READ Pause WRITE SetPause)
    Q_PROPERTY(int HidePause READ HidePause WRITE SetHidePause)

public:
    enum TqHintShape { hsRectangle, hsRounded, hsBalloon };
    Q_ENUM(TqHintShape)

    explicit TqHint(QWidget *owner = nullptr);
    ~TqHint() override;

    bool Active() const { return FActive; }
    void SetActive(bool active);
    TColor Color() const { return FColor; }
    void SetColor(TColor color) { FColor = color; }
    TColor FontColor() const { return FFontColor; }
    void SetFontColor(TColor color) { FFontColor = color; }
    QFont Font() const { return FFont; }
    void SetFont(const QFont &font) { FFont = font; }
    TColor FrameColor() const { return FFrameColor; }
    void SetFrameColor(TColor color) { FFrameColor = color; }
    TqHintShape Shape() const { return FShape; }
    void SetShape(TqHintShape shape) { FShape = shape; }
    int RoundSize() const { return FRoundSize; }
    void SetRoundSize(int size) { FRoundSize = qBound(0, size, 64); }
    bool Shadow() const { return FShadow; }
    void SetShadow(bool shadow) { FShadow = shadow; }
    TColor ShadowColor() const { return FShadowColor; }
    void SetShadowColor(TColor color) { FShadowColor = color; }
    int ShadowDepth() const { return FShadowDepth; }
    void SetShadowDepth(int depth) { FShadowDepth = qBound(0, depth, 32); }
    int Margin() const { return FMargin; }
    void SetMargin(int margin) { FMargin = qBound(0, margin, 64); }
    int MaxWidth() const { return FMaxWidth; }
    void SetMaxWidth(int width) { FMaxWidth = qMax(16, width); }
    int Pause() const { return FPause; }
    void SetPause(int millis);
    int HidePause() const { return FHidePause; }
    void SetHidePause(int millis);

    void SetDesigning(bool designing) override;

    // The window the tips show in (made on first use).
    TqHintWindow *Window();

private:
    void install();
    void uninstall();

    bool FActive = true;
    TColor FColor = clInfoBk;
    TColor FFontColor = clInfoText;
    QFont FFont;
    TColor FFrameColor = clBlack;
    TqHintShape FShape = hsRectangle;
    int FRoundSize = 12;
    bool FShadow = true;
    TColor FShadowColor = clGray;
    int FShadowDepth = 4;
    int FMargin = 4;
    int FMaxWidth = 300;
    int FPause = 700;
    int FHidePause = 10000;
    bool FInstalled = false;
    std::unique_ptr<TqHintWindow> FWindow;
};
