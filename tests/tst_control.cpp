// What all controls share: mouse events in the platform's order, colour
// inheritance, design mode, the off-screen paint and the non-visual face.
#include "host/tcontrol.h"
#include "testutil.h"

#include <QBuffer>
#include <QEnterEvent>
#include <QHelpEvent>
#include <QUiLoader>

namespace {
// Paints its left half blue (or `colour`) and leaves the rest to whatever
// is below.
class HalfControl : public TGraphicControl
{
public:
    using TGraphicControl::TGraphicControl;
    int paints = 0;
    TColor colour = clBlue;
protected:
    void Paint(TCanvas &canvas) override
    {
        ++paints;
        canvas.Brush.SetColor(colour);
        canvas.FillRect(Rect(0, 0, width() / 2, height()));
    }
};
// Keeps itself square and counts the hooks it sees; raises OnClick only
// when told to.
class SquareControl : public TCustomControl
{
    Q_OBJECT
    Q_PROPERTY(int Value READ Value WRITE SetValue)
public:
    using TCustomControl::TCustomControl;
    int Value() const { return value; }
    void SetValue(int v) { value = v; }
    int value = 0;
    int valueAtLoaded = -1;
    int loads = 0;
    int bounds = 0;
    int clicks = 0;
    bool passClick = true;
    void SetBounds(int l, int t, int w, int h) override
    {
        ++bounds;
        const int side = w != width() ? w : h;
        TCustomControl::SetBounds(l, t, side, side);
    }
protected:
    void Loaded() override
    {
        TCustomControl::Loaded();
        ++loads;
        valueAtLoaded = value;
    }
    void Click() override
    {
        ++clicks;
        if (passClick)
            TCustomControl::Click();
    }
    void MouseDown(TMouseButton, TShiftState, int, int) override {}   // swallowed
    void Paint(TCanvas &canvas) override
    {
        canvas.Brush.SetColor(clNavy);
        canvas.FillRect(ClientRect());
    }
};

// Draws a focus rectangle round its edge over whatever is beneath.
class FocusFrame : public TGraphicControl
{
public:
    using TGraphicControl::TGraphicControl;
protected:
    void Paint(TCanvas &canvas) override { canvas.DrawFocusRect(ClientRect()); }
};

class Loader : public QUiLoader
{
public:
    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        if (className != QLatin1String("SquareControl"))
            return QUiLoader::createWidget(className, parent, name);
        auto *w = new SquareControl(parent);
        w->setObjectName(name);
        return w;
    }
};

QRgb pixelOf(QWidget *w, int x, int y) { return w->grab().toImage().pixel(x, y) & 0xFFFFFF; }

} // namespace

class tst_Control : public QObject
{
    Q_OBJECT
private slots:
    void mouseSequences()
    {
        HalfControl c;
        c.resize(40, 20);
        QStringList log;
        connect(&c, &TControl::OnMouseDown, this, [&](QObject *s, TControl::TMouseButton b, int shift, int x, int y) {
            QCOMPARE(s, &c);
            log << QStringLiteral("down%1 %2 %3,%4").arg(shift & TControl::ssDouble ? "2" : "").arg(int(b)).arg(x).arg(y);
        });
        connect(&c, &TControl::OnClick, this, [&](QObject *) { log << QStringLiteral("click"); });
        connect(&c, &TControl::OnDblClick, this, [&](QObject *) { log << QStringLiteral("dbl"); });
        connect(&c, &TControl::OnMouseUp, this, [&](QObject *, TControl::TMouseButton, int, int, int) { log << QStringLiteral("up"); });
        // What the window system sends for a double click: the second release is no click.
        QTest::mousePress(&c, Qt::LeftButton, Qt::NoModifier, QPoint(7, 5));
        QTest::mouseRelease(&c, Qt::LeftButton, Qt::NoModifier, QPoint(7, 5));
        QTest::mouseDClick(&c, Qt::LeftButton, Qt::NoModifier, QPoint(7, 5));
        QTest::mouseRelease(&c, Qt::LeftButton, Qt::NoModifier, QPoint(7, 5));
        QCOMPARE(log, (QStringList{"down 0 7,5", "click", "up", "dbl", "down2 0 7,5", "up"}));
        // Released outside: no click. The right button clicks nothing either.
        log.clear();
        QTest::mousePress(&c, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QTest::mouseRelease(&c, Qt::LeftButton, Qt::NoModifier, QPoint(60, 5));
        QTest::mouseClick(&c, Qt::RightButton, Qt::NoModifier, QPoint(3, 4));
        QCOMPARE(log, (QStringList{"down 0 5,5", "up", "down 1 3,4", "up"}));
        QSignalSpy downs(&c, &TControl::OnMouseDown);
        QTest::mouseClick(&c, Qt::RightButton, Qt::ShiftModifier | Qt::ControlModifier, QPoint(3, 4));
        QCOMPARE(downs.at(0).at(2).toInt() & (TControl::ssShift | TControl::ssCtrl | TControl::ssAlt | TControl::ssRight),
                 TControl::ssShift | TControl::ssCtrl | TControl::ssRight);
        // Entering and leaving.
        QSignalSpy enter(&c, &TControl::OnMouseEnter), leave(&c, &TControl::OnMouseLeave);
        QEnterEvent e(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
        QCoreApplication::sendEvent(&c, &e);
        QEvent l(QEvent::Leave);
        QCoreApplication::sendEvent(&c, &l);
        QCOMPARE(enter.count(), 1);
        QCOMPARE(leave.count(), 1);
        QCOMPARE(enter.at(0).at(0).value<QObject *>(), &c);
    }

    void parentColor()
    {
        HalfControl parent;
        parent.SetColor(clNavy);
        auto *child = new HalfControl(&parent);
        QVERIFY(child->ParentColor());
        QCOMPARE(child->Color(), clNavy);
        parent.SetColor(clTeal);
        QCOMPARE(child->Color(), clTeal);
        // A colour of its own ends the inheritance...
        child->SetColor(clRed);
        QVERIFY(!child->ParentColor());
        parent.SetColor(clOlive);
        QCOMPARE(child->Color(), clRed);
        // ...and ParentColor brings it back.
        child->SetParentColor(true);
        QCOMPARE(child->Color(), clOlive);
        // A child moved under another parent takes that parent's colour.
        HalfControl other;
        other.SetColor(clPurple);
        child->setParent(&other);
        QCOMPARE(child->Color(), clPurple);
    }

    void showHint()
    {
        HalfControl parent;
        auto *child = new HalfControl(&parent);
        child->SetHint(QStringLiteral("tip"));
        QCOMPARE(child->toolTip(), QStringLiteral("tip"));
        QVERIFY(child->ShowHint());
        parent.SetShowHint(false);
        QVERIFY(!child->ShowHint());   // follows the parent
        QHelpEvent help(QEvent::ToolTip, QPoint(1, 1), QPoint(1, 1));
        QVERIFY(QCoreApplication::sendEvent(child, &help));   // swallowed
        child->SetShowHint(true);
        QVERIFY(!child->ParentShowHint());
        QVERIFY(child->ShowHint());
    }

    void designModeAndTheComponentsFace()
    {
        HalfControl runtime;
        QVERIFY(!runtime.IsDesigning());
        {
            DesignTimeCreation scope;
            HalfControl designed;
            TComponent component;
            QVERIFY(designed.IsDesigning());
            QVERIFY(component.IsDesigning());
        }
        HalfControl after;
        QVERIFY(!after.IsDesigning());
        // A component shows a face only while designed.
        QWidget form;
        auto *component = new TComponent(&form);
        form.show();
        QVERIFY(!component->isVisible());           // nothing at run time
        component->SetDesigning(true);
        QVERIFY(component->isVisible());
        const QImage shot = component->grab().toImage();
        QCOMPARE(QColor(shot.pixel(0, 0)), QGuiApplication::palette().color(QPalette::Light));
    }

    void overriddenHooksDecideTheEvents()
    {
        SquareControl c;
        c.SetBounds(0, 0, 30, 30);
        QSignalSpy downs(&c, &TControl::OnMouseDown), ups(&c, &TControl::OnMouseUp), clicks(&c, &TControl::OnClick);
        QTest::mouseClick(&c, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QCOMPARE(downs.count(), 0);   // MouseDown swallowed it
        QCOMPARE(ups.count(), 1);
        QCOMPARE(c.clicks, 1);
        QCOMPARE(clicks.count(), 1);
        c.passClick = false;
        QTest::mouseClick(&c, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QCOMPARE(c.clicks, 2);
        QCOMPARE(clicks.count(), 1);
    }

    void everyResizeGoesThroughSetBounds()
    {
        QWidget form;
        form.resize(200, 200);
        auto *c = new SquareControl(&form);
        QVERIFY(shown(&form));
        c->bounds = 0;
        c->SetBounds(10, 10, 40, 30);        // from code: the width changed, so it wins
        QCOMPARE(c->geometry(), QRect(10, 10, 40, 40));
        QCOMPARE(c->bounds, 1);
        c->resize(40, 70);                    // round SetBounds: the height wins
        QCOMPARE(c->size(), QSize(70, 70));
        QCOMPARE(c->bounds, 2);
        c->setGeometry(5, 5, 20, 70);         // as a layout or the designer does
        QCOMPARE(c->geometry(), QRect(5, 5, 20, 20));
        QCOMPARE(c->bounds, 3);
        c->SetLeft(7);
        QCOMPARE(c->geometry(), QRect(7, 5, 20, 20));
        QCOMPARE(c->bounds, 4);
        c->SetBounds(7, 5, 20, 20);           // nothing changes, still one call
        QCOMPARE(c->bounds, 5);
    }

    void loadedRunsOnceAfterAFormLoad()
    {
        QByteArray ui = R"(<ui version="4.0"><class>Form</class>
        <widget class="QWidget" name="Form">
         <widget class="SquareControl" name="a"><property name="Value"><number>7</number></property></widget>
         <widget class="SquareControl" name="b"><property name="Value"><number>9</number></property></widget>
        </widget></ui>)";
        QBuffer file(&ui);
        Loader loader;
        std::unique_ptr<QWidget> form;
        {
            FormLoading loading;
            form.reset(loader.load(&file));
            QVERIFY(form);
            QCOMPARE(form->findChild<SquareControl *>("a")->loads, 0);   // not before the form is complete
        }
        for (const char *name : {"a", "b"}) {
            auto *c = form->findChild<SquareControl *>(name);
            QCOMPARE(c->loads, 1);
            QCOMPARE(c->valueAtLoaded, c->value);   // after the stored properties
            QVERIFY(!c->IsLoading());
        }
        // Made by code: no Loaded at all. Queued (the designer's way): once.
        SquareControl byCode, queued;
        queued.QueueLoaded();
        QVERIFY(queued.IsLoading());
        QTRY_COMPARE(queued.loads, 1);
        queued.FinishLoading();
        QCoreApplication::processEvents();
        QCOMPARE(queued.loads, 1);
        QCOMPARE(byCode.loads, 0);
    }

    void keysAndFocus()
    {
        QWidget form;
        auto *c = new SquareControl(&form);
        auto *other = new SquareControl(&form);
        other->move(50, 0);
        QStringList log;
        connect(c, &TCustomControl::OnEnter, this, [&] { log << "enter"; });
        connect(c, &TCustomControl::OnExit, this, [&] { log << "exit"; });
        connect(c, &TCustomControl::OnKeyDown, this, [&](QObject *, quint16 &key, int shift) {
            if (key == 0x10)
                return;   // the shift key itself
            log << QStringLiteral("down %1 %2").arg(key, 0, 16).arg(shift);
            if (key == 0x25)
                key = 0;   // consumed
        });
        connect(c, &TCustomControl::OnKeyPress, this, [&](QObject *, char &key) { log << QStringLiteral("press %1").arg(key); });
        connect(c, &TCustomControl::OnKeyUp, this, [&](QObject *, quint16 &key, int) {
            if (key != 0x10)
                log << QStringLiteral("up %1").arg(key, 0, 16);
        });
        form.show();
        QApplication::setActiveWindow(&form);
        QVERIFY(QTest::qWaitForWindowActive(&form));
        c->setFocus();
        QTest::keyClick(c, 'A', Qt::ShiftModifier);
        QTest::keyClick(c, Qt::Key_Left);
        other->setFocus();
        QCOMPARE(log, (QStringList{"enter", "down 41 1", "press A", "up 41", "down 25 0", "up 25", "exit"}));
    }

    void updatePaintsOnlyThisControl()
    {
        QWidget form;
        form.resize(100, 50);
        auto *a = new HalfControl(&form), *b = new HalfControl(&form);
        a->SetControlStyle(a->ControlStyle() | csOpaque);
        b->SetControlStyle(b->ControlStyle() | csOpaque);
        a->setGeometry(0, 0, 40, 40);
        b->setGeometry(50, 0, 40, 40);
        QVERIFY(shown(&form));
        QTRY_VERIFY(a->paints > 0 && b->paints > 0);
        const int pa = a->paints, pb = b->paints;
        a->Update();                       // nothing pending: nothing painted
        QCOMPARE(a->paints, pa);
        a->Invalidate();
        a->Update();                       // painted at once, and alone
        QCOMPARE(a->paints, pa + 1);
        QCOMPARE(b->paints, pb);
    }

    void transparentControlCombinesWithWhatIsBeneath()
    {
        QWidget form;
        form.resize(40, 20);
        form.setPalette(QPalette(Qt::red));
        auto *below = new HalfControl(&form);           // an earlier sibling: blue on the left
        below->setGeometry(0, 0, 40, 20);
        auto *frame = new FocusFrame(&form);
        frame->setGeometry(0, 0, 40, 20);
        // The focus rectangle's dots invert what is beneath, one pixel in two.
        QCOMPARE(pixelOf(&form, 0, 0), qRgb(255, 255, 0) & 0xFFFFFF);    // blue inverted
        QCOMPARE(pixelOf(&form, 1, 0), qRgb(0, 0, 255) & 0xFFFFFF);
        QCOMPARE(pixelOf(&form, 30, 0), qRgb(0, 255, 255) & 0xFFFFFF);   // red inverted
        QCOMPARE(pixelOf(&form, 31, 0), qRgb(255, 0, 0) & 0xFFFFFF);
        QCOMPARE(pixelOf(&form, 30, 10), qRgb(255, 0, 0) & 0xFFFFFF);   // inside: untouched
        // Rendered alone, the picture lies over the background it is given.
        const QImage direct = below->RenderImage(qRgb(0, 255, 0));
        QCOMPARE(QColor(direct.pixel(5, 5)), QColor(Qt::blue));
        QCOMPARE(QColor(direct.pixel(30, 5)), QColor(Qt::green));
    }

    void canvasOutsidePaint()
    {
        ShownOnForm<HalfControl> shown;
        QWidget &form = shown.form;
        shown.control->setGeometry(0, 0, 40, 20);
        const QRgb before = pixelOf(&form, 30, 5);
        {
            TControlCanvas canvas(&form);
            canvas.Pen.SetMode(pmNot);
            canvas.MoveTo(0, 5);
            canvas.LineTo(40, 5);
            canvas.Flush();
            QCOMPARE(pixelOf(&form, 30, 5), ~before & 0xFFFFFF);
            QCOMPARE(pixelOf(&form, 5, 5), qRgb(255, 255, 0) & 0xFFFFFF);   // over the child too
            canvas.MoveTo(0, 5);
            canvas.LineTo(40, 5);   // drawn again: gone
            canvas.Flush();
            QCOMPARE(pixelOf(&form, 30, 5), before);
            canvas.LineTo(40, 15);
            canvas.Flush();
        }
        QCOMPARE(pixelOf(&form, 39, 10), pixelOf(&form, 38, 10));   // removed with the canvas
    }

    // A control in clBtnFace on a shown form: repainted in the new colour when
    // the application's palette changes, and in a style sheet's colours.
    void systemColoursFollowPaletteAndStyleSheet()
    {
        ShownOnForm<HalfControl> shown;
        QWidget &form = shown.form;
        shown.control->colour = clBtnFace;
        shown.control->setGeometry(0, 0, 40, 20);
        const QPalette before = QApplication::palette();
        QCOMPARE(pixelOf(&form, 5, 5), before.color(QPalette::Button).rgb() & 0xFFFFFF);
        QPalette dark = before;
        dark.setColor(QPalette::Button, QColor(30, 30, 30));
        QApplication::setPalette(dark);
        QTRY_COMPARE(pixelOf(&form, 5, 5), qRgb(30, 30, 30) & 0xFFFFFF);
        QApplication::setPalette(before);
        QTRY_COMPARE(pixelOf(&form, 5, 5), before.color(QPalette::Button).rgb() & 0xFFFFFF);
        // A style sheet on the form: its button colour is the controls' clBtnFace.
        form.setStyleSheet(QStringLiteral("* { background-color: rgb(16, 32, 48); }"));
        QTRY_COMPARE(pixelOf(&form, 5, 5), qRgb(16, 32, 48) & 0xFFFFFF);
        form.setStyleSheet(QString());
        QTRY_COMPARE(pixelOf(&form, 5, 5), before.color(QPalette::Button).rgb() & 0xFFFFFF);
    }
};

QTEST_MAIN(tst_Control)
#include "tst_control.moc"
