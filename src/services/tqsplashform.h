#pragma once
// A splash window for the start of an application: Bitmap (or, without
// one, a raised 320 x 200 panel in Color), with Caption in Font and
// FontColor centred 12 pixels above its bottom edge, in the middle of the
// screen, above other windows while StayOnTop.
//
// With Active (default), it shows as soon as the form it sits on has been
// loaded (made by code, call Show). It closes once MinimumTime ms have
// passed since it showed and its form has been shown, at once when it is
// clicked while CloseOnClick, or by Close. OnClose follows every closing.
//
// Properties (defaults): Active (true), Bitmap (none), Caption (empty),
// Font, FontColor (clWhite), Color (clBtnFace), MinimumTime (2000),
// CloseOnClick (true), StayOnTop (true); OnShow, OnClose.

#include "host/tcolor.h"
#include "host/tcomponent.h"

#include <QElapsedTimer>
#include <QFont>
#include <QImage>
#include <QPixmap>
#include <QPointer>
#include <QTimer>

class TqSplashForm : public TComponent
{
    Q_OBJECT
    Q_PROPERTY(bool Active READ Active WRITE SetActive)
    Q_PROPERTY(QPixmap Bitmap READ Bitmap WRITE SetBitmap)
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(QFont Font READ Font WRITE SetFont)
    Q_PROPERTY(TColor FontColor READ FontColor WRITE SetFontColor)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(int MinimumTime READ MinimumTime WRITE SetMinimumTime)
    Q_PROPERTY(bool CloseOnClick READ CloseOnClick WRITE SetCloseOnClick)
    Q_PROPERTY(bool StayOnTop READ StayOnTop WRITE SetStayOnTop)

public:
    explicit TqSplashForm(QWidget *owner = nullptr);
    ~TqSplashForm() override;

    bool Active() const { return FActive; }
    void SetActive(bool active) { FActive = active; }
    QPixmap Bitmap() const { return QPixmap::fromImage(FBitmap); }
    void SetBitmap(const QPixmap &bitmap);
    QString Caption() const { return FCaption; }
    void SetCaption(const QString &caption);
    QFont Font() const { return FFont; }
    void SetFont(const QFont &font);
    TColor FontColor() const { return FFontColor; }
    void SetFontColor(TColor color);
    TColor Color() const { return FColor; }
    void SetColor(TColor color);
    int MinimumTime() const { return FMinimumTime; }
    void SetMinimumTime(int millis) { FMinimumTime = qMax(0, millis); }
    bool CloseOnClick() const { return FCloseOnClick; }
    void SetCloseOnClick(bool close) { FCloseOnClick = close; }
    bool StayOnTop() const { return FStayOnTop; }
    void SetStayOnTop(bool onTop) { FStayOnTop = onTop; }

    void Show();
    void Close();
    bool Showing() const;
    // The splash window while it shows (null otherwise), and its picture.
    QWidget *Window() const;
    QImage Picture() const;

signals:
    void OnShow(QObject *Sender);
    void OnClose(QObject *Sender);

protected:
    void Loaded() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class SplashWindow;
    void closeWhenDue();
    void refresh();

    bool FActive = true;
    QImage FBitmap;
    QString FCaption;
    QFont FFont;
    TColor FFontColor = clWhite;
    TColor FColor = clBtnFace;
    int FMinimumTime = 2000;
    bool FCloseOnClick = true;
    bool FStayOnTop = true;
    QPointer<QWidget> FWindow;
    QPointer<QWidget> FForm;
    QElapsedTimer FShown;
    QTimer FDue;
};
