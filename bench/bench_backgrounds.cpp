// The cost of a form's wallpaper at 1920 x 1080, against filling the same
// area with one QPainter::fillRect:
// - a full repaint of a form with a TqBackground (bands top to bottom, left
//   to right, rings, tiles, steel), rendered off-screen, against a plain
//   form whose paintEvent is one fillRect;
// - making the wallpaper again, as after a resize, against one fillRect of
//   an image of that size;
// - a full repaint of a TqBlendPaint and a TqTileMap of that size.
#include "benchutil.h"

#include "backgrounds/blend.h"

#include <QApplication>
#include <QPainter>

namespace {

constexpr int W = 1920;
constexpr int H = 1080;

class FilledForm : public QWidget
{
public:
    FilledForm() { resize(W, H); }

protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).fillRect(rect(), QColor(40, 60, 90)); }
};

QPixmap tile()
{
    QImage image(64, 64, QImage::Format_RGB32);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            image.setPixel(x, y, qRgb(120 + (x * 5 + y * 3) % 40, 120 + (x + y) % 30, 140));
    return QPixmap::fromImage(image);
}

struct Look {
    const char *name;
    TqBackground::TqBackType type;
    gradType grad;
};

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);

    FilledForm plain;
    const double fillRepaint = renderRate(plain, [](int) {});
    QImage scratch(W, H, QImage::Format_RGB32);
    const double fillImage = ratePerSecond([&] { QPainter(&scratch).fillRect(scratch.rect(), QColor(40, 60, 90)); }, 500);

    const Look looks[] = {
        {"bands, top to bottom", TqBackground::btBlend, gVert},
        {"bands, left to right", TqBackground::btBlend, gHorz},
        {"rings to the centre", TqBackground::btBlend, gCenter},
        {"tiles 64x64", TqBackground::btBitmap, gVert},
        {"steel", TqBackground::btSteel, gVert},
    };

    ratioHeader("form repaint 1920x1080");
    for (const Look &look : looks) {
        QWidget form;
        form.resize(W, H);
        auto *back = new TqBackground(&form);
        back->SetBackType(look.type);
        back->SetGrad(look.grad);
        back->SetColor(0x00402000);
        back->SetEndColor(0x00FFC080);
        back->SetBitMap(tile());
        back->QueueLoaded();
        back->FinishLoading();
        const double ours = renderRate(form, [](int) {});
        ratioRow(look.name, ours, "one fillRect", fillRepaint);
    }

    std::printf("\n");
    ratioHeader("wallpaper made again 1920x1080");
    for (const Look &look : looks) {
        TqBackground back;
        back.SetBackType(look.type);
        back.SetGrad(look.grad);
        back.SetColor(0x00402000);
        back.SetEndColor(0x00FFC080);
        back.SetBitMap(tile());
        const double ours = ratePerSecond([&] { back.WallPaper(W, H); }, 500);
        ratioRow(look.name, ours, "fillRect of an image", fillImage);
    }

    std::printf("\n");
    ratioHeader("painter repaint 1920x1080");
    TqBlendPaint blend;
    blend.SetBounds(0, 0, W, H);
    blend.SetColor(0x00402000);
    blend.SetEndColor(0x00FFC080);
    ratioRow("TqBlendPaint bands", renderRate(blend, [](int) {}), "one fillRect", fillRepaint);
    TqTileMap tiles;
    tiles.SetBounds(0, 0, W, H);
    tiles.SetBitmap(tile());
    ratioRow("TqTileMap 64x64", renderRate(tiles, [](int) {}), "one fillRect", fillRepaint);
    return 0;
}
