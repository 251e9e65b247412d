#pragma once
// What the labels share: a caption in the control's font, placed left,
// centred or right and in the middle of the height, on the control's Color
// unless Transparent (default) lets what lies beneath show; AutoSize
// (default true) fits the control to the caption and its decoration.

#include "host/tcontrol.h"

class TCaptionLabel : public TGraphicControl
{
    Q_OBJECT
public:
    explicit TCaptionLabel(QWidget *parent = nullptr);

    QString Caption() const { return FCaption; }
    void SetCaption(const QString &caption);
    Controls::TAlignment Alignment() const { return FAlignment; }
    void SetAlignment(Controls::TAlignment alignment);
    bool Transparent() const { return FTransparent; }
    void SetTransparent(bool transparent);
    bool AutoSize() const { return FAutoSize; }
    void SetAutoSize(bool autoSize);

    QString Text() const override { return FCaption; }
    void SetText(const QString &text) override { SetCaption(text); }

    // Where the caption's top-left goes when drawn without decoration.
    QPoint CaptionAt() const;

protected:
    // Pixels the decoration adds around the caption (outline, shadow, depth).
    virtual QMargins Decoration() const { return {}; }
    // Draws the caption at `at`, decorated.
    virtual void PaintCaption(TCanvas &canvas, QPoint at) = 0;
    void Paint(TCanvas &canvas) override;
    void changeEvent(QEvent *event) override;
    // A change of the look: refit (with AutoSize) and repaint.
    void Changed();
    // Fits the control to the caption and its decoration.
    virtual void Fit();

private:
    QString FCaption;
    Controls::TAlignment FAlignment = taLeftJustify;
    bool FTransparent = true;
    bool FAutoSize = true;
};
