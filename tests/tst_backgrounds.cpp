// Form backgrounds, blend painters and tile maps.
#include "backgrounds/blend.h"
#include "host/tapplication.h"

#include "testutil.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>

namespace {

int grey(const QImage &image, int x, int y) { return qRed(image.pixel(x, y)); }

// A picture whose pixels tell where they came from.
QPixmap numbered(int w, int h)
{
    QImage image(w, h, QImage::Format_RGB32);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            image.setPixel(x, y, qRgb(x, y, 77));
    return QPixmap::fromImage(image);
}

} // namespace

class tst_Backgrounds : public QObject
{
    Q_OBJECT
private slots:
    void bandsAndRings()
    {
        TqBackground back;
        back.SetBackType(TqBackground::btBlend);
        back.SetColor(clBlack);
        back.SetEndColor(clWhite);
        // 256 bands over 200 rows: band i from row MulDiv(i, 200, 256), grey i.
        QImage v = back.WallPaper(300, 200);
        QCOMPARE(grey(v, 10, 0), 0);
        QCOMPARE(grey(v, 10, 99), 127);
        QCOMPARE(grey(v, 10, 100), 128);
        QCOMPARE(grey(v, 10, 199), 255);
        back.SetGrad(gHorz);
        QImage hz = back.WallPaper(300, 200);
        QCOMPARE(grey(hz, 149, 5), 127);
        QCOMPARE(grey(hz, 150, 5), 128);
        QCOMPARE(grey(hz, 299, 5), 255);
        // Rings: 100 one-pixel rings and a centre.
        back.SetGrad(gCenter);
        QImage c = back.WallPaper(300, 200);
        QCOMPARE(grey(c, 0, 100), 0);
        QCOMPARE(grey(c, 50, 60), MulDiv(50, 255, 100));
        QCOMPARE(grey(c, 250, 100), MulDiv(49, 255, 100));
        QCOMPARE(grey(c, 150, 100), MulDiv(99, 255, 100));   // no row is left for the centre
        QCOMPARE(grey(back.WallPaper(300, 201), 150, 100), 255);
        // No ring at all divides by zero; negative bands paint nothing.
        back.SetBands(0);
        QVERIFY_THROWS_EXCEPTION(std::domain_error, back.WallPaper(300, 200));
        back.SetBands(-1);
        QVERIFY(back.WallPaper(300, 200).isNull());
    }

    void tilesWithoutSeams()
    {
        TqBackground back;
        back.SetBitMap(numbered(64, 64));
        const QImage w = back.WallPaper(100, 100);
        for (QPoint p : {QPoint(0, 0), QPoint(63, 63), QPoint(64, 0), QPoint(99, 64), QPoint(64, 99)})
            QCOMPARE(w.pixel(p), qRgb(p.x() % 64, p.y() % 64, 77));
        QVERIFY(TqBackground().WallPaper(100, 100).isNull());   // no bitmap: the form's own
        TqTileMap map;
        map.SetBounds(0, 0, 100, 50);
        map.SetBitmap(numbered(64, 64));
        const QImage m = map.RenderImage();
        QCOMPARE(m.pixel(64, 0), qRgb(0, 0, 77));
        QCOMPARE(m.pixel(99, 49), qRgb(35, 49, 77));
    }

    void wallpaperOnTheFormAtRunTimeOnly()
    {
        QWidget form;
        form.resize(300, 200);
        auto *back = new TqBackground(&form);
        back->SetBackType(TqBackground::btBlend);
        back->SetColor(clRed);
        back->SetEndColor(clBlue);
        int resizes = 0;
        connect(back, &TqBackground::OnResize, back, [&] { ++resizes; });
        connect(back, &TqBackground::OnPaint, back, [](TCanvas *canvas, QObject *) {
            canvas->Brush.SetColor(clLime);
            canvas->FillRect(Rect(0, 0, 10, 10));
        });
        loaded(back);
        QVERIFY(shown(&form));
        resizes = 0;
        QImage shot = form.grab().toImage();
        QCOMPARE(shot.pixel(150, 0), qRgb(255, 0, 0));
        QCOMPARE(shot.pixel(150, 199), qRgb(0, 0, 255));
        QCOMPARE(shot.pixel(5, 5), qRgb(0, 255, 0));   // OnPaint over it
        form.resize(320, 200);
        QCOMPARE(resizes, 1);
        // The wallpaper stands in for the form's own background; when there is
        // none, or the component goes, the form paints its own again.
        const QRgb own = form.palette().color(QPalette::Window).rgb();
        QVERIFY(form.testAttribute(Qt::WA_OpaquePaintEvent));
        back->SetBackType(TqBackground::btNormal);
        QCOMPARE(form.grab().toImage().pixel(150, 100), own);
        back->SetBackType(TqBackground::btSteel);
        QVERIFY(form.grab().toImage().pixel(150, 100) != own);
        delete back;
        QVERIFY(!form.testAttribute(Qt::WA_OpaquePaintEvent));
        QCOMPARE(form.grab().toImage().pixel(150, 100), own);
        // Designed, the form keeps its own background.
        QWidget designedForm;
        designedForm.resize(100, 100);
        const auto designed = madeInDesigner<TqBackground>(&designedForm);
        designed->SetBackType(TqBackground::btSteel);
        loaded(designed.get());
        QCOMPARE(designedForm.grab().toImage().pixel(50, 50), designedForm.palette().color(QPalette::Window).rgb());
    }

    void wallpaperOnAnMdiArea()
    {
        QMainWindow main;
        auto *area = new QMdiArea;
        main.setCentralWidget(area);
        main.resize(300, 200);
        auto *child = area->addSubWindow(new QWidget);
        child->setGeometry(0, 0, 80, 60);
        auto *back = new TqBackground(&main);
        back->SetBackType(TqBackground::btBlend);
        back->SetColor(clYellow);
        back->SetEndColor(clYellow);
        loaded(back);
        QVERIFY(shown(&main));
        QCOMPARE(back->Target(), area->viewport());
        const QImage shot = area->viewport()->grab().toImage();
        QCOMPARE(shot.pixel(shot.width() - 5, shot.height() - 5), qRgb(255, 255, 0));
        QVERIFY(shot.pixel(40, 30) != qRgb(255, 255, 0));   // the sub-window is in front
    }

    void paintersAndTheirOptions()
    {
        TqBlendPaint blend;
        blend.SetBounds(0, 0, 40, 20);
        blend.SetColor(clBlack);
        blend.SetEndColor(clWhite);
        blend.SetBands(1);   // two bands: rows 0-9 black, 10-19 white
        QImage a = blend.RenderImage();
        QCOMPARE(a.pixel(20, 9), qRgb(0, 0, 0));
        QCOMPARE(a.pixel(20, 10), qRgb(255, 255, 255));
        blend.SetSteel(true);   // the colours no longer count
        const QImage steel = blend.RenderImage();
        blend.SetEndColor(clRed);
        QCOMPARE(blend.RenderImage(), steel);
        blend.SetGrad(gCenter);
        blend.SetSteel(false);
        blend.SetBands(0);
        QStringList errors;
        QObject context;
        connect(Application(), &TApplication::OnException, &context,
                [&](QObject *, const std::exception &e) { errors << QString::fromLatin1(e.what()); });
        blend.show();   // painted as an event: the error goes to the application
        QVERIFY(QTest::qWaitForWindowExposed(&blend));
        QTRY_COMPARE(errors, QStringList{"Division by zero"});
        blend.hide();
        // In the designer a dashed outline finds the control.
        const auto designed = madeInDesigner<TqNWTileMap>();
        designed->SetBounds(0, 0, 30, 30);
        const QImage outline = designed->RenderImage(qRgb(255, 255, 255));
        QCOMPARE(outline.pixel(1, 0), qRgb(0, 0, 0));
        QCOMPARE(outline.pixel(15, 15), qRgb(255, 255, 255));
    }

    // Made on a form, a blend painter starts magenta and following its
    // parent; the parent's next colour is its own, and its own colour ends
    // the following.
    void blendPaintersStartMagentaAndFollowTheirParent()
    {
        TqBlendPaint parent;
        parent.SetColor(clBlue);
        auto *windowed = new TqBlendPaint(&parent);
        auto *plain = new TqNWBlendPaint(&parent);
        for (TControl *blend : {static_cast<TControl *>(windowed), static_cast<TControl *>(plain)}) {
            QCOMPARE(blend->Color(), TColor(0x00FF00FF));
            QVERIFY(blend->ParentColor());
        }
        windowed->SetEndColor(clRed);
        parent.SetColor(clRed);
        QCOMPARE(windowed->Color(), clRed);
        QCOMPARE(windowed->RenderImage().pixel(0, 0), rgb(clRed));
        plain->SetColor(clLime);
        QVERIFY(!plain->ParentColor());
        parent.SetColor(clYellow);
        QCOMPARE(plain->Color(), clLime);
    }

    void mouseFallsThroughANonWindowedPainter()
    {
        QWidget form;
        form.resize(200, 100);
        auto *button = new QPushButton(&form);
        button->setGeometry(0, 0, 200, 100);
        auto *cover = new TqNWBlendPaint(&form);
        cover->SetBounds(50, 25, 100, 50);
        cover->SetPassMouseOn(true);
        QVERIFY(shown(&form));
        QSignalSpy clicked(button, &QPushButton::clicked);
        QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, QPoint(100, 50));
        QCOMPARE(clicked.count(), 1);
        cover->SetPassMouseOn(false);
        QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, QPoint(100, 50));
        QCOMPARE(clicked.count(), 1);
    }
};

QTEST_MAIN(tst_Backgrounds)
#include "tst_backgrounds.moc"
