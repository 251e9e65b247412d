#include "qbackground.h"

#include "backgrounds/qblendpainter.h"
#include "host/tcanvas.h"
#include "host/tform.h"
#include "host/tsteel.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMetaMethod>
#include <QPainter>

TqBackground::TqBackground(QWidget *owner) : TComponent(owner)
{
    DoColor();
}

void TqBackground::DoColor()
{
    FBlend = TBlend(FColor, FEndColor);
}

TqBackground::~TqBackground()
{
    if (FTarget && FCovering) {
        FTarget->setAttribute(Qt::WA_OpaquePaintEvent, false);
        FTarget->update();
    }
}

void TqBackground::changed()
{
    FPicture = QImage();
    if (!IsDesigning() && FTarget) {
        coverTarget();
        FTarget->update();
    }
}

bool TqBackground::HasWallPaper() const
{
    return FBackType != btNormal && !(FBackType == btBitmap && FBitmap.isNull())
        && !(FBackType == btBlend && FBands < 0);
}

// A wallpaper over a whole window takes the place of the window's own
// background, which Qt then does not paint first. A form that paints
// opaquely by itself is left as it is.
void TqBackground::coverTarget()
{
    if (!FTarget->isWindow() || (!FCovering && FTarget->testAttribute(Qt::WA_OpaquePaintEvent)))
        return;
    FCovering = HasWallPaper();
    FTarget->setAttribute(Qt::WA_OpaquePaintEvent, FCovering);
}

void TqBackground::SetGrad(gradType type)
{
    FFillType = type;
    DoColor();
    changed();
}

void TqBackground::SetBitMap(const QPixmap &bitmap)
{
    FBitmap = bitmap.toImage().convertToFormat(QImage::Format_RGB32);
    changed();
}

void TqBackground::SetBackType(TqBackType type)
{
    if (type == FBackType)
        return;
    FBackType = type;
    DoColor();
    changed();
}

void TqBackground::SetColor(TColor color)
{
    if (color == FColor)
        return;
    FColor = color;
    DoColor();
    changed();
}

void TqBackground::SetEndColor(TColor color)
{
    if (color == FEndColor)
        return;
    FEndColor = color;
    DoColor();
    changed();
}

void TqBackground::SetBands(int bands)
{
    if (bands == FBands)
        return;
    FBands = bands;
    DoColor();
    changed();
}

QImage TqBackground::WallPaper(int w, int h) const
{
    if (w <= 0 || h <= 0 || !HasWallPaper())
        return QImage();
    QImage picture(w, h, QImage::Format_RGB32);
    TCanvas canvas(&picture);
    switch (FBackType) {
    case btBitmap: {
        const int bw = FBitmap.width(), bh = FBitmap.height();
        for (int row = 0; row <= h / bh; ++row)
            for (int col = 0; col <= w / bw; ++col)
                canvas.Draw(bw * col, bh * row, FBitmap);
        break;
    }
    case btSteel:
        canvas.Brush.SetBitmap(TSteel());
        canvas.FillRect(Rect(0, 0, w, h));
        break;
    default:
        PaintBackgroundBlend(canvas, FFillType, FBands, FBlend, w, h);
        break;
    }
    return picture;
}

void TqBackground::Loaded()
{
    TComponent::Loaded();
    if (IsDesigning())
        return;
    QWidget *form = FindForm(this);
    // On a form with an MDI area the wallpaper goes on the area, after it
    // has painted its own background and before its sub-windows.
    QMdiArea *mdi = nullptr;
    if (auto *main = qobject_cast<QMainWindow *>(form))
        mdi = qobject_cast<QMdiArea *>(main->centralWidget());
    if (!mdi)
        mdi = form->findChild<QMdiArea *>(QString(), Qt::FindDirectChildrenOnly);
    FTarget = mdi ? mdi->viewport() : form;
    delete FHook;
    const auto before = [this](QEvent *e) {
        if (e->type() == QEvent::Resize) {
            FPicture = QImage();
            DoResize();
        } else if (e->type() == QEvent::Paint && FTarget && FTarget->isWindow()) {
            paintWallPaper();
        }
        return false;
    };
    if (mdi)
        FHook = new TFormHook(FTarget, this, before, [this](QEvent *) { paintWallPaper(); }, {QEvent::Paint});
    else
        FHook = new TFormHook(FTarget, this, before);
    coverTarget();
    FTarget->update();
}

void TqBackground::DoResize()
{
    emit OnResize(this);
}

bool TqBackground::paintWallPaper()
{
    QWidget *target = FTarget;
    if (!target || target->window()->isMinimized())
        return false;
    QPainter painter(target);
    const auto ownBackground = [&] {
        if (FCovering)
            painter.fillRect(target->rect(), target->palette().brush(target->backgroundRole()));
    };
    if (FPicture.size() != target->size()) {
        try {
            FPicture = WallPaper(target->width(), target->height());
        } catch (...) {
            ownBackground();
            throw;
        }
    }
    if (!FPicture.isNull())
        painter.drawImage(0, 0, FPicture);
    else
        ownBackground();
    DoPaint(painter);
    return false;
}

// OnPaint draws on a copy of the form's picture, which then goes on the form.
void TqBackground::DoPaint(QPainter &painter)
{
    static const QMetaMethod onPaint = QMetaMethod::fromSignal(&TqBackground::OnPaint);
    if (!isSignalConnected(onPaint) || !FTarget)
        return;
    QImage frame = FPicture;
    if (frame.isNull()) {
        frame = QImage(FTarget->size(), QImage::Format_RGB32);
        frame.fill(FTarget->palette().color(FTarget->backgroundRole()));
    }
    TCanvas canvas(&frame);
    emit OnPaint(&canvas, this);
    painter.drawImage(0, 0, frame);
}
