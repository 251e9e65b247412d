#pragma once
// The LED lamp: round or square, eight colours, lit or unlit, with a grey
// bezel, optionally on the steel texture, and able to blink by itself. Its
// lit state is published as Enabled.

#include "host/tcontrol.h"

#include <utility>

class QTimer;

// The drawing scale of a lamp `width` pixels wide: width div 17, kept in 1..6.
int LedScale(int width);

class TqLed : public TGraphicControl
{
    Q_OBJECT
    Q_PROPERTY(int Width READ Width WRITE SetWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(QString Hint READ Hint WRITE SetHint)
    Q_PROPERTY(bool SteelLook READ SteelLook WRITE SetSteel)
    Q_PROPERTY(LedStyleType LedStyle READ LedStyle WRITE SetStyle)
    Q_PROPERTY(int DragCursor READ DragCursor WRITE SetDragCursor)
    Q_PROPERTY(TDragMode DragMode READ DragMode WRITE SetDragMode)
    Q_PROPERTY(Controls::TAlign Align READ Align WRITE SetAlign)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool ParentShowHint READ ParentShowHint WRITE SetParentShowHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)
    Q_PROPERTY(LedColorType LEDColor READ LEDColor WRITE WriteLedColor)
    Q_PROPERTY(bool Enabled READ Enabled WRITE writeLedOn)
    Q_PROPERTY(bool Blink READ Blink WRITE SetBlink)
    Q_PROPERTY(int BlinkInterval READ BlinkInterval WRITE SetInterval)

public:
    enum LedColorType { lctRed, lctBlue, lctGreen, lctyellow, lctMangenta, lctGrey, lctCyan, lctWhite };
    Q_ENUM(LedColorType)
    enum LedStyleType { lstRound, lstSquare };
    Q_ENUM(LedStyleType)

    explicit TqLed(QWidget *parent = nullptr);
    ~TqLed() override;

    bool SteelLook() const { return FSteel; }
    void SetSteel(bool steel);
    LedStyleType LedStyle() const { return FStyle; }
    void SetStyle(LedStyleType style);
    LedColorType LEDColor() const { return FColor; }
    void WriteLedColor(LedColorType color);
    // Lit when true.
    bool Enabled() const { return FOn; }
    void writeLedOn(bool on);
    bool Blink() const { return FBlink; }
    void SetBlink(bool blink);
    int BlinkInterval() const { return FInterval; }
    void SetInterval(int interval);

    // The lit and unlit colour of a colour family.
    static std::pair<TColor, TColor> Colors(LedColorType color);
    // The blink timer while there is one.
    QTimer *BlinkTimer() const { return FTimer; }

signals:
    void OnChange(QObject *Sender);
    void OnPaint(QObject *Sender);

protected:
    void Paint(TCanvas &canvas) override;
    // Toggles the lit state: what the blink timer does on every tick.
    virtual void DoTheBlink();

private:
    void paintRound(TCanvas &canvas, int f);
    void paintSquare(TCanvas &canvas, int f);
    void dropTimer();
    void makeTimer();

    bool FSteel = false;
    LedStyleType FStyle = lstRound;
    LedColorType FColor = lctRed;
    bool FOn = false;
    bool FBlink = false;
    int FInterval = 500;
    QTimer *FTimer = nullptr;
};

using LedColorType = TqLed::LedColorType;
using LedStyleType = TqLed::LedStyleType;
