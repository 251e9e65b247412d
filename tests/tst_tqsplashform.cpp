// The splash form.
#include "services/mystd.h"

#include "testutil.h"

class tst_TqSplashForm : public QObject
{
    Q_OBJECT
private slots:
    void closesAfterTheFormAndTheMinimumTime()
    {
        QWidget form;
        auto *splash = new TqSplashForm(&form);
        splash->SetMinimumTime(0);
        QSignalSpy shown(splash, &TqSplashForm::OnShow), closed(splash, &TqSplashForm::OnClose);
        splash->Show();
        QCOMPARE(shown.count(), 1);
        QVERIFY(splash->Showing());
        QVERIFY(splash->Window()->testAttribute(Qt::WA_WState_Visible));
        // The time is over, but the form has not shown: it stays.
        QTimer tick;
        QSignalSpy ticks(&tick, &QTimer::timeout);
        tick.start(30);
        QVERIFY(ticks.wait());
        QVERIFY(ticks.wait());
        QVERIFY(splash->Showing());
        form.show();
        QVERIFY(closed.wait());
        QCOMPARE(closed.count(), 1);
        QVERIFY(!splash->Showing());

        // The form shows at once, but the minimum time holds it.
        splash->SetMinimumTime(300);
        QElapsedTimer since;
        since.start();
        splash->Show();
        form.hide();
        form.show();
        QVERIFY(closed.wait(5000));
        QVERIFY(since.elapsed() >= 300);   // never before its time
        QCOMPARE(closed.count(), 2);
    }

    void closesOnAClickWhenAsked()
    {
        QWidget form;
        auto *splash = new TqSplashForm(&form);
        splash->SetMinimumTime(60000);
        splash->SetCloseOnClick(false);
        splash->Show();
        QSignalSpy closed(splash, &TqSplashForm::OnClose);
        QTest::mouseClick(splash->Window(), Qt::LeftButton);
        QVERIFY(splash->Showing());
        splash->SetCloseOnClick(true);
        QTest::mouseClick(splash->Window(), Qt::LeftButton);
        QVERIFY(!splash->Showing());
        QTRY_COMPARE(closed.count(), 1);
        // Freed with its form while showing: the window goes with it.
        splash->Show();
        QPointer<QWidget> window = splash->Window();
        delete splash;
        QVERIFY(!window);
    }

    void showsWhenItsFormHasLoaded()
    {
        QWidget form;
        TqSplashForm *active, *inactive;
        {
            FormLoading loading;
            active = new TqSplashForm(&form);
            inactive = new TqSplashForm(&form);
            inactive->SetActive(false);
            QVERIFY(!active->Showing());
        }
        QVERIFY(active->Showing());
        QVERIFY(!inactive->Showing());
        // Designed, it never shows.
        TqSplashForm designed;
        designed.SetDesigning(true);
        designed.Show();
        QVERIFY(!designed.Showing());
    }

    void picture()
    {
        TqSplashForm splash;
        splash.SetColor(clNavy);
        splash.SetFontColor(clYellow);
        splash.SetFont(crisp(splash.Font(), 16));
        splash.SetCaption(QStringLiteral("Loading"));
        QImage p = splash.Picture();
        QCOMPARE(p.size(), QSize(320, 200));
        QCOMPARE(p.pixel(0, 0), ColorToQColor(clBtnHighlight).rgb());   // raised: light top left
        QCOMPARE(p.pixel(319, 199), ColorToQColor(clBtnShadow).rgb());  // dark bottom right
        QCOMPARE(p.pixel(100, 50), qRgb(0, 0, 128));
        // The caption: centred, its line ending 12 pixels above the bottom.
        const QRect ink = pixelsOf(p, qRgb(255, 255, 0)).box;
        QVERIFY(!ink.isEmpty());
        QVERIFY(qAbs(ink.center().x() - 160) <= 2);
        QVERIFY(ink.bottom() < 200 - 12 && ink.bottom() > 200 - 12 - QFontMetrics(splash.Font()).height());
        // With a bitmap: its size and its pixels.
        QPixmap bitmap(40, 30);
        bitmap.fill(Qt::green);
        splash.SetCaption(QString());
        splash.SetBitmap(bitmap);
        p = splash.Picture();
        QCOMPARE(p.size(), QSize(40, 30));
        QCOMPARE(p.pixel(0, 0), qRgb(0, 255, 0));
    }
};

QTEST_MAIN(tst_TqSplashForm)
#include "tst_tqsplashform.moc"
