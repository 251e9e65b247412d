// The title bar; dragging by the client area is tested on a real desktop
// (tst_desktop).
#include "services/mystd.h"

#include "testutil.h"

#include <QDialog>
#include <QLineEdit>

namespace {

struct LoadedOn
{
    TqTitleBar *bar;
    EventLog log;
    explicit LoadedOn(QWidget *form, bool onShow = true) : bar(new TqTitleBar(form))
    {
        bar->SetTitleBarOnFormShow(onShow);
        log.watch(bar, &TqTitleBar::OnChange, "change");
        loaded(bar);
    }
};

} // namespace

class tst_TqTitleBar : public QObject
{
    Q_OBJECT
private slots:
    void hideAndShowKeepTheForm()
    {
        QWidget form;
        auto *edit = new QLineEdit(&form);
        form.setGeometry(100, 120, 300, 200);
        LoadedOn on(&form);
        QCOMPARE(on.log.names, QStringList{"change"});   // shown as loaded: no change, still told
        QVERIFY(shown(&form));
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        edit->setFocus();
        const QPoint place = form.pos();
        on.bar->SetTitleBar(false);
        QVERIFY(!on.bar->IsShowTitleBar());
        QCOMPARE(form.size(), QSize(300, 200));
        QCOMPARE(form.pos(), place);
        QVERIFY(form.isVisible());
        QCOMPARE(form.focusWidget(), edit);   // the form's focus stays where it was
        on.bar->SetTitleBar(true);
        QCOMPARE(form.size(), QSize(300, 200));
        QCOMPARE(on.log.names, (QStringList{"change", "change", "change"}));
    }

    void borderStyleCases()
    {
        // No border: nothing changes and nobody is told.
        QWidget bare(nullptr, Qt::FramelessWindowHint);
        LoadedOn none(&bare, false);
        none.bar->SetTitleBar(false);
        QVERIFY(none.log.names.isEmpty());
        QCOMPARE(bare.windowFlags() & Qt::CustomizeWindowHint, Qt::WindowFlags());
        // A dialog loses its title bar as loaded.
        QDialog dialog;
        dialog.setFixedSize(200, 100);
        LoadedOn fixed(&dialog, false);
        QVERIFY(!fixed.bar->IsShowTitleBar());
        QCOMPARE(dialog.windowType(), Qt::Dialog);
        QCOMPARE(dialog.size(), QSize(200, 100));
        // A tool window keeps its title bar; each hide takes its height off,
        // whether it is sizable or of a fixed size (which it stays).
        for (const bool fixedSize : {false, true}) {
            QWidget tool(nullptr, Qt::Tool);
            tool.resize(200, 150);
            if (fixedSize)
                tool.setFixedSize(200, 150);
            QCOMPARE(FormBorderStyle(&tool), fixedSize ? bsToolWindow : bsSizeToolWin);
            LoadedOn palette(&tool);
            const int caption = TitleBarHeight(&tool);
            QVERIFY(caption > 0);
            palette.bar->SetTitleBar(false);
            QCOMPARE(tool.height(), 150 - caption);
            palette.bar->SetTitleBar(false);
            QCOMPARE(tool.height(), 150 - 2 * caption);
            QVERIFY(palette.bar->IsShowTitleBar());
            palette.bar->SetTitleBar(true);
            QCOMPARE(tool.height(), 150 - 2 * caption);
            QCOMPARE(FormBorderStyle(&tool), fixedSize ? bsToolWindow : bsSizeToolWin);
        }
    }

    void designerLeavesTheFormAlone()
    {
        QWidget form;
        const auto bar = madeInDesigner<TqTitleBar>(&form);
        bar->SetTitleBarOnFormShow(false);
        loaded(bar.get());
        bar->SetTitleBar(false);
        QVERIFY(bar->IsShowTitleBar());
    }
};

QTEST_MAIN(tst_TqTitleBar)
#include "tst_tqtitlebar.moc"
