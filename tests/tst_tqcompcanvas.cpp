// The component canvas.
#include "services/std2.h"

#include "testutil.h"

namespace {

struct Panel
{
    QWidget form;
    QWidget *control = new QWidget(&form);
    Panel()
    {
        form.resize(100, 60);
        control->setObjectName(QStringLiteral("dial"));
        control->setGeometry(10, 10, 50, 40);
        control->setAutoFillBackground(true);
        control->setPalette(QPalette(Qt::white));
        form.show();
        if (!QTest::qWaitForWindowExposed(&form))
            qWarning("the form was not shown");
        waitForRepaintOf(&form, QRect(80, 50, 5, 5));   // nothing left to paint
    }
    // What the screen shows (a grab would paint the control anew).
    QRgb at(int x, int y) { return form.screen()->grabWindow(form.winId()).toImage().pixel(x, y); }
};

QByteArray messageOf(const std::function<void()> &call)
{
    try {
        call();
    } catch (const EqCompCanvasException &e) {
        return e.what();
    }
    return QByteArray();
}

} // namespace

class tst_TqCompCanvas : public QObject
{
    Q_OBJECT
private slots:
    void misuses()
    {
        Panel panel;
        TqCompCanvas canvas(&panel.form);
        QCOMPARE(messageOf([&] { canvas.EndPaint(); }), QByteArray("We are not drawing"));
        QCOMPARE(messageOf([&] { canvas.StartPaint(); }), QByteArray("No component to draw on"));
        canvas.SetControl(panel.control);
        canvas.StartPaint();
        QCOMPARE(messageOf([&] { canvas.StartPaint(); }), QByteArray("We are allready drawing"));
        QVERIFY(canvas.Drawing());   // the misuse changed nothing
        canvas.EndPaint();
    }

    void drawingShowsUntilTheControlPaints()
    {
        Panel panel;
        TqCompCanvas canvas(&panel.form);
        canvas.SetControl(panel.control);
        canvas.StartPaint();
        TCanvas *c = canvas.Canvas();
        c->Pen.SetColor(clLime);
        c->Brush.SetColor(clRed);
        c->FillRect(Rect(0, 0, 10, 10));
        QTRY_COMPARE(panel.at(15, 15), qRgb(255, 0, 0));   // over the control, at once
        QCOMPARE(panel.at(40, 30), qRgb(255, 255, 255));    // the rest shows the control
        canvas.EndPaint();
        QVERIFY(canvas.Canvas()->ClipRect().Right == 0);   // a fresh canvas, on nothing yet
        QCOMPARE(canvas.Canvas()->Pen.Color(), TColor(clBlack));   // keeping nothing of the last
        waitForRepaintOf(&panel.form, QRect(80, 50, 5, 5));
        QCOMPARE(panel.at(15, 15), qRgb(255, 0, 0));       // still there after the session
        panel.control->update();                            // until the control paints itself
        QTRY_COMPARE(panel.at(15, 15), qRgb(255, 255, 255));
    }

    // The control's own paint removes the drawing: one asked for right
    // after EndPaint, and one during a session (which then goes on).
    void theControlsPaintRemovesTheDrawing()
    {
        Panel panel;
        TqCompCanvas canvas(&panel.form);
        canvas.SetControl(panel.control);
        const auto drawRed = [&] {
            canvas.Canvas()->Brush.SetColor(clRed);
            canvas.Canvas()->FillRect(Rect(0, 0, 10, 10));
        };
        canvas.StartPaint();
        drawRed();
        canvas.EndPaint();
        QCOMPARE(panel.at(15, 15), qRgb(255, 0, 0));
        panel.control->update();
        QTRY_COMPARE(panel.at(15, 15), qRgb(255, 255, 255));

        canvas.StartPaint();
        drawRed();
        QTRY_COMPARE(panel.at(15, 15), qRgb(255, 0, 0));
        panel.control->repaint();
        QCOMPARE(panel.at(15, 15), qRgb(255, 255, 255));
        QVERIFY(canvas.Drawing());
        canvas.Canvas()->Brush.SetColor(clBlue);   // the session goes on
        canvas.Canvas()->FillRect(Rect(20, 0, 30, 10));
        QTRY_COMPARE(panel.at(35, 15), qRgb(0, 0, 255));
        QCOMPARE(panel.at(15, 15), qRgb(255, 255, 255));
        canvas.EndPaint();

        // A new session does not wipe what the last one drew.
        canvas.StartPaint();
        waitForRepaintOf(&panel.form, QRect(80, 50, 5, 5));
        QCOMPARE(panel.at(35, 15), qRgb(0, 0, 255));
        canvas.EndPaint();
    }

    void controlByNameAndGone()
    {
        Panel panel;
        TqCompCanvas canvas(&panel.form);
        canvas.SetControlComponent(QStringLiteral("dial"));
        QCOMPARE(canvas.Control(), panel.control);
        // Itself, or another component, is no control: the dial stays.
        canvas.setObjectName(QStringLiteral("canvas"));
        auto *timer = new TqcTimer(&panel.form);
        timer->setObjectName(QStringLiteral("timer"));
        for (const char *name : {"canvas", "timer", "nothing"}) {
            canvas.SetControlComponent(QString::fromLatin1(name));
            QCOMPARE(canvas.Control(), panel.control);
        }
        canvas.SetControl(&canvas);
        QCOMPARE(canvas.Control(), panel.control);
        canvas.StartPaint();
        delete panel.control;
        QVERIFY(!canvas.Drawing());
        QVERIFY(!canvas.Control());
        QVERIFY(canvas.ControlComponent().isEmpty());
    }
};

QTEST_MAIN(tst_TqCompCanvas)
#include "tst_tqcompcanvas.moc"
