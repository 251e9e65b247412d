// The needle meter: scale geometry, the picture of the three looks at the
// points the geometry fixes, the value rules and the alert events.
#include "instruments/qpanel.h"
#include "testutil.h"

namespace {

void watch(EventLog &log, TqPanelMeter &m)
{
    log.watch(&m, &TqPanelMeter::OnAlert, "alert");
    log.watch(&m, &TqPanelMeter::OnNotAlert, "notalert");
    log.watch(&m, &TqPanelMeter::OnChange, "change");
}

} // namespace

class tst_QPanelMeter : public QObject
{
    Q_OBJECT
private slots:
    void roundScaleGeometry()
    {
        const TMeterGeometry g = MeterGeometry(105, 97);
        QCOMPARE(g.hb, 73);
        QCOMPARE(g.base, 64);
        QCOMPARE(g.face, Rect(10, 9, 96, 65));
        QCOMPARE(MeterScalePoint(g, 50), Point(52, 16));   // straight up
        // Min and Max sit 50 degrees either side, mirrored about the centre.
        const TPoint lo = MeterScalePoint(g, 0), hi = MeterScalePoint(g, 100);
        QCOMPARE(lo.Y, hi.Y);
        QCOMPARE(lo.X + hi.X, 2 * g.cx);
        QVERIFY(lo.X < g.cx && lo.Y > 16);
        QCOMPARE(MeterPercent(33, 0, 100), 33);
        QCOMPARE(MeterPercent(7, 5, 5), 0);   // an empty range paints, at the left end
    }

    void roundLookPicture()
    {
        TqPanelMeter m;
        m.SetValue(50);
        const TMeterGeometry g = MeterGeometry(105, 97);
        QImage img = m.RenderImage();
        QCOMPARE(img.pixel(52, 16), rgb(clGreen));           // the needle's tip...
        QCOMPARE(img.pixel(52, g.hb - g.b - 10), rgb(clGreen));   // ...down towards its pivot
        QCOMPARE(img.pixel(20, 40), rgb(clWhite));           // the face
        const TPoint normal = MeterScalePoint(g, 30), alert = MeterScalePoint(g, 90);
        QCOMPARE(img.pixel(normal.X, normal.Y), rgb(clBlack));
        QCOMPARE(img.pixel(alert.X, alert.Y), rgb(clRed));
        const TPoint tick = MeterScalePoint(g, 20);
        QCOMPARE(img.pixel(tick.X, tick.Y - 4), rgb(clBlack));   // two pixels above the band
        QCOMPARE(img.pixel(52, g.hb + g.b - 1), rgb(clBtnShadow));   // the screw's slot
        // Without the alert zone the band is one colour; without ShowAll, no screw.
        m.SetUseAlert(false);
        m.SetShowAll(false);
        img = m.RenderImage();
        QCOMPARE(img.pixel(alert.X, alert.Y), rgb(clBlack));
        QVERIFY(img.pixel(52, g.hb + g.b - 1) != rgb(clBtnShadow));
    }

    void alertEventsOncePerCrossing()
    {
        TqPanelMeter m;
        EventLog log;
        watch(log, m);
        m.SetValue(80);
        m.SetValue(90);
        m.SetValue(10);
        m.SetValue(10);   // no change, still an OnChange
        QCOMPARE(log.names, (QStringList{"alert", "change", "change", "notalert", "change", "change"}));
        log.names.clear();
        m.SetUseAlert(false);
        m.SetValue(95);
        QCOMPARE(log.names, QStringList{"change"});
    }

    void rangeRules()
    {
        TqPanelMeter m;
        m.SetValue(500);
        QCOMPARE(m.Value(), 100);
        m.SetScaledMax(40);   // clamps the value with the usual events
        QCOMPARE(m.Value(), 40);
        m.SetScaledMin(60);   // not above Max
        QCOMPARE(m.Min(), 40);
        m.SetScaledMin(0);
        m.SetAlert(300);
        QCOMPARE(m.Alert(), 40);
        // In the designer the caption follows the name until it is set.
        DesignTimeCreation designing;
        TqPanelMeter named;
        named.setObjectName(QStringLiteral("Meter1"));
        QCOMPARE(named.Caption(), QStringLiteral("Meter1"));
        named.setObjectName(QStringLiteral("Volts"));
        QCOMPARE(named.Caption(), QStringLiteral("Volts"));
        named.SetCaption(QStringLiteral("mA"));
        named.setObjectName(QStringLiteral("Amps"));
        QCOMPARE(named.Caption(), QStringLiteral("mA"));
        m.setObjectName(QStringLiteral("Running"));   // made outside the designer
        QVERIFY(m.Caption().isEmpty());
    }

    void edgewiseAlertZones()
    {
        TqPanelMeter m;
        m.SetPanelType(TqPanelMeter::qpEdgeHorz);
        m.SetBounds(0, 0, 150, 60);   // a = 10, b = 12, scale 130 long
        m.SetTicks(false);
        m.SetValue(40);
        QImage img = m.RenderImage();
        const int edge = 11 + EdgeOffset(75, 130), band = (60 - 2 + 1) / 2 + 1;
        QCOMPARE(img.pixel(edge - 1, band), rgb(clBlack));
        QCOMPARE(img.pixel(edge, band), rgb(clRed));
        const int pointer = 11 + EdgeOffset(40, 130);
        QCOMPARE(img.pixel(pointer, 13), rgb(clGreen));

        // Vertical: values grow upward; the alert strip runs from the top of the
        // band down to the threshold.
        m.SetPanelType(TqPanelMeter::qpEdgeVert);
        m.SetBounds(0, 0, 60, 150);   // a = 12, b = 10, e = 140
        img = m.RenderImage();
        const int column = (60 - 2 + 1) / 2 + 1, threshold = 140 - (EdgeOffset(75, 130) + 1);
        QCOMPARE(img.pixel(column, 11), rgb(clRed));
        QCOMPARE(img.pixel(column, threshold), rgb(clBlack));
        QCOMPARE(img.pixel(20, 140 - (EdgeOffset(40, 130) + 1)), rgb(clGreen));
    }

    void steelReplacesTheBevelColours()
    {
        TqPanelMeter m;
        m.SetSteelLook(true);
        QCOMPARE(m.ShadowColor(), clGray);
        QCOMPARE(m.HighColor(), clWhite);
        const QImage img = m.RenderImage();
        QCOMPARE(img.pixel(3, 81), rgb(clWhite));   // the housing in the texture
        m.SetHighColor(clYellow);
        QVERIFY(!m.SteelLook());
        QCOMPARE(m.ShadowColor(), clGray);   // replaced for good
    }

    // The dial is drawn once and only the needle on each new value: whatever
    // changed in between, the picture is what a new meter draws.
    void keptDialFollowsEveryChange()
    {
        TqPanelMeter kept;
        const auto sameAsNew = [&](const char *step) {
            TqPanelMeter fresh;
            fresh.SetBounds(0, 0, kept.width(), kept.height());
            for (const char *name : {"Caption", "FaceColor", "PanelType", "Ticks", "Max", "Alert"})
                fresh.setProperty(name, kept.property(name));
            fresh.SetValue(kept.Value());
            QVERIFY2(kept.RenderImage() == fresh.RenderImage(), step);
        };
        kept.SetValue(30);
        kept.RenderImage();
        kept.SetValue(80);
        sameAsNew("value");
        kept.SetFaceColor(clYellow);
        sameAsNew("face colour");
        kept.SetCaption(QStringLiteral("mV"));
        kept.SetValue(10);
        sameAsNew("caption and value");
        kept.SetScaledMax(50);
        kept.SetAlert(40);
        sameAsNew("range");
        kept.SetAlert(20);
        kept.SetTicks(false);
        sameAsNew("alert and ticks");
        kept.SetBounds(0, 0, 150, 120);
        sameAsNew("size");
        kept.SetPanelType(TqPanelMeter::qpEdgeVert);
        kept.SetValue(40);
        sameAsNew("edgewise");
        // A palette change: the system colours of the house and bevels follow.
        const QPalette before = QGuiApplication::palette();
        QPalette dark = before;
        dark.setColor(QPalette::Button, QColor(40, 40, 40));
        QApplication::setPalette(dark);
        QCoreApplication::processEvents();
        sameAsNew("palette");
        QApplication::setPalette(before);
    }
};

QTEST_MAIN(tst_QPanelMeter)
#include "tst_qpanelmeter.moc"
