#include "tqsplashform.h"

#include "host/tcanvas.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

class TqSplashForm::SplashWindow : public QWidget
{
public:
    explicit SplashWindow(TqSplashForm *splash)
        : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint), FSplash(splash)
    {
        setAttribute(Qt::WA_DeleteOnClose);
        setAttribute(Qt::WA_OpaquePaintEvent);
        setObjectName(QStringLiteral("qcolSplashWindow"));
    }

    QImage Picture;

protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).drawImage(0, 0, Picture); }
    void mousePressEvent(QMouseEvent *event) override
    {
        if (event->button() == Qt::LeftButton && FSplash && FSplash->CloseOnClick())
            FSplash->Close();
    }

private:
    QPointer<TqSplashForm> FSplash;
};

TqSplashForm::TqSplashForm(QWidget *owner) : TComponent(owner)
{
    FFont.setPointSize(12);
    FFont.setBold(true);
    FDue.setSingleShot(true);
    connect(&FDue, &QTimer::timeout, this, &TqSplashForm::closeWhenDue);
}

TqSplashForm::~TqSplashForm()
{
    if (FWindow) {
        disconnect(FWindow, nullptr, this, nullptr);
        delete FWindow.data();
    }
}

void TqSplashForm::SetBitmap(const QPixmap &bitmap)
{
    FBitmap = bitmap.toImage();
    refresh();
}

void TqSplashForm::SetCaption(const QString &caption)
{
    FCaption = caption;
    refresh();
}

void TqSplashForm::SetFont(const QFont &font)
{
    FFont = font;
    refresh();
}

void TqSplashForm::SetFontColor(TColor color)
{
    FFontColor = color;
    refresh();
}

void TqSplashForm::SetColor(TColor color)
{
    FColor = color;
    refresh();
}

QImage TqSplashForm::Picture() const
{
    const QSize size = FBitmap.isNull() ? QSize(320, 200) : FBitmap.size();
    QImage picture(size, QImage::Format_RGB32);
    TCanvas canvas(&picture);
    if (FBitmap.isNull()) {
        canvas.Brush.SetColor(FColor);
        canvas.FillRect(Rect(0, 0, size.width(), size.height()));
        TRect r = Rect(0, 0, size.width(), size.height());
        Frame3D(canvas, r, clBtnHighlight, clBtnShadow, 1);
    } else {
        canvas.Draw(0, 0, FBitmap.convertToFormat(QImage::Format_RGB32));
    }
    if (!FCaption.isEmpty()) {
        canvas.Font = TFont::FromQFont(FFont, FFontColor);
        canvas.Brush.SetStyle(bsClear);
        const int w = canvas.TextWidth(FCaption), h = canvas.TextHeight(FCaption);
        canvas.TextOut((size.width() - w) / 2, size.height() - 12 - h, FCaption);
    }
    return picture;
}

void TqSplashForm::refresh()
{
    if (auto *w = static_cast<SplashWindow *>(FWindow.data())) {
        w->Picture = Picture();
        w->resize(w->Picture.size());
        w->update();
    }
}

void TqSplashForm::Show()
{
    if (IsDesigning())
        return;
    if (!FWindow) {
        auto *w = new SplashWindow(this);
        if (FStayOnTop)
            w->setWindowFlag(Qt::WindowStaysOnTopHint);
        w->Picture = Picture();
        QScreen *screen = parentWidget() ? window()->screen() : QGuiApplication::primaryScreen();
        const QRect area = screen ? screen->availableGeometry() : QRect(0, 0, 800, 600);
        w->setGeometry(QRect(QPoint(0, 0), w->Picture.size()).translated(area.center() - QPoint(w->Picture.width() / 2, w->Picture.height() / 2)));
        FWindow = w;
        connect(w, &QObject::destroyed, this, [this] {
            FDue.stop();
            emit OnClose(this);
        });
    }
    FForm = parentWidget() ? window() : nullptr;
    if (FForm)
        FForm->installEventFilter(this);
    FWindow->show();
    FWindow->raise();
    FWindow->repaint();
    FShown.start();
    emit OnShow(this);
    FDue.start(FMinimumTime);
}

void TqSplashForm::Close()
{
    FDue.stop();
    if (FForm)
        FForm->removeEventFilter(this);
    if (FWindow)
        FWindow->close();
}

bool TqSplashForm::Showing() const
{
    return FWindow && FWindow->isVisible();
}

QWidget *TqSplashForm::Window() const
{
    return FWindow;
}

// Closes once the minimum time is over and the form has shown.
void TqSplashForm::closeWhenDue()
{
    if (!Showing())
        return;
    const qint64 left = FMinimumTime - FShown.elapsed();
    if (left > 0) {
        FDue.start(int(left));
        return;
    }
    if (!FForm || FForm->isVisible())
        Close();
}

void TqSplashForm::Loaded()
{
    TComponent::Loaded();
    if (FActive && !IsDesigning())
        Show();
}

bool TqSplashForm::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == FForm && event->type() == QEvent::Show)
        QTimer::singleShot(0, this, &TqSplashForm::closeWhenDue);
    return TComponent::eventFilter(watched, event);
}
