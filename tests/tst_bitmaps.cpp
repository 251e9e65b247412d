// Bitmap effects pixel by pixel (turns, darken, lighten, grey, the disabled
// raster, the transparent blit) and the frame and divider pictures.
#include "buttons/qanimate.h"

#include "testutil.h"

namespace {

// A picture whose pixels tell where they came from.
void numbered(TBitmap &b, int w, int h)
{
    QImage image(w, h, QImage::Format_RGB32);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            image.setPixel(x, y, qRgb(x * 10, y * 10, 200));
    b.Assign(image);
}

// A picture of one row of these pixels.
QImage row(std::initializer_list<QRgb> pixels)
{
    QImage image(int(pixels.size()), 1, QImage::Format_RGB32);
    int x = 0;
    for (QRgb p : pixels)
        image.setPixel(x++, 0, p);
    return image;
}

QRgb at(const TBitmap &b, int x, int y) { return b.Image().pixel(x, y) | 0xFF000000u; }

} // namespace

class tst_Bitmaps : public QObject
{
    Q_OBJECT
private slots:
    void rightAnglesAreExact()
    {
        TBitmap b;
        numbered(b, 4, 3);
        BMPRotate(b, 90);   // clockwise: (x, y) goes to (h - 1 - y, x)
        QCOMPARE(QSize(b.Width(), b.Height()), QSize(3, 4));
        for (int y = 0; y < 3; ++y)
            for (int x = 0; x < 4; ++x)
                QCOMPARE(at(b, 2 - y, x), qRgb(x * 10, y * 10, 200));
        BMPRotate(b, -180);   // a half turn back: a left turn in all, (0,0) at the bottom left
        QCOMPARE(at(b, 0, 3), qRgb(0, 0, 200));
    }

    void anyAngleByNearestPixel()
    {
        TBitmap b;
        numbered(b, 10, 10);
        BMPRotate(b, 45);
        QCOMPARE(QSize(b.Width(), b.Height()), QSize(15, 15));
        QCOMPARE(at(b, 7, 7), qRgb(50, 50, 200));          // the centre stays
        QCOMPARE(at(b, 0, 0), qRgb(0, 90, 200));           // corners: the transparent colour
        QCOMPARE(at(b, 7, 1), qRgb(0, 0, 200));            // the top-left corner turned to the top
    }

    void darkenLightenGrey()
    {
        TBitmap b;
        b.Assign(row({qRgb(200, 100, 51), qRgb(255, 0, 10)}));
        DarkenBMP(b, 25);
        QCOMPARE(at(b, 0, 0), qRgb(150, 75, 38));
        LightenBMP(b, 50);
        QCOMPARE(at(b, 0, 0), qRgb(203, 165, 147));
        DarkenBMP(b, 250);   // past 100: black
        QCOMPARE(at(b, 1, 0), qRgb(0, 0, 0));
        b.Assign(row({qRgb(255, 128, 0)}));
        GreyBMP(b);
        QCOMPARE(at(b, 0, 0), qRgb(151, 151, 151));   // (299*255 + 587*128) / 1000
    }

    void rasterAndTransparentBlit()
    {
        TBitmap b;
        QImage glyph(3, 3, QImage::Format_RGB32);
        glyph.fill(qRgb(255, 0, 255));   // the key: bottom-left
        glyph.setPixel(1, 0, qRgb(0, 0, 0));
        glyph.setPixel(1, 1, qRgb(0, 0, 0));
        glyph.setPixel(0, 1, qRgb(0, 0, 0));
        b.Assign(glyph);
        QCOMPARE(TransparentColorOf(b), TColor(0x00FF00FF));
        RasterBMP(b, clGray);
        QCOMPARE(at(b, 1, 0), qRgb(128, 128, 128));   // x + y odd
        QCOMPARE(at(b, 1, 1), qRgb(0, 0, 0));         // even: kept
        QCOMPARE(at(b, 2, 1), qRgb(255, 0, 255));     // transparent: kept
        QImage target(5, 5, QImage::Format_RGB32);
        target.fill(qRgb(0, 255, 0));
        TCanvas canvas(&target);
        TransparentBlt(canvas, 1, 1, b, 0x00FF00FF);
        QCOMPARE(target.pixel(2, 2), qRgb(0, 0, 0));
        QCOMPARE(target.pixel(3, 3), qRgb(0, 255, 0));   // the key colour is not painted
        QCOMPARE(target.pixel(2, 1), qRgb(128, 128, 128));
    }

    void framesAndDividers()
    {
        const QRgb shadow = ColorToQRgb(clBtnShadow) | 0xFF000000u, light = ColorToQRgb(clBtnHighlight) | 0xFF000000u;
        const QRgb under = qRgb(1, 2, 3);
        TqFrame frame;
        frame.SetBounds(0, 0, 20, 10);
        const QImage box = frame.RenderImage(under);
        QCOMPARE(box.pixel(0, 0), shadow);
        QCOMPARE(box.pixel(19, 9), light);
        QCOMPARE(box.pixel(10, 5), under);   // only lines
        frame.SetStyle(TqFrame::fsRaised);
        frame.SetShape(TqFrame::fsBottomLine);
        QImage bottom = frame.RenderImage(under);
        QCOMPARE(bottom.pixel(10, 8), light);
        QCOMPARE(bottom.pixel(10, 9), shadow);
        frame.SetShape(TqFrame::fsFrame);
        frame.SetStyle(TqFrame::fsLowered);
        QImage groove = frame.RenderImage(under);
        QCOMPARE(groove.pixel(18, 5), shadow);
        QCOMPARE(groove.pixel(19, 5), light);
        TqDivider divider;
        divider.SetBounds(0, 0, 100, 16);
        QCOMPARE(divider.RenderImage(under).pixel(50, 8), light);   // the line at 7 and 8
        divider.SetCaption(QStringLiteral("Input"));
        QImage captioned = divider.RenderImage(under);
        QCOMPARE(captioned.pixel(9, 7), divider.palette().color(QPalette::Window).rgb());   // the caption's ground
        QCOMPARE(captioned.pixel(95, 7), shadow);
        divider.SetKind(TqDivider::dkVertical);
        divider.SetBounds(0, 0, 10, 40);
        QCOMPARE(divider.RenderImage(under).pixel(5, 20), light);
    }

    void pictureInPlace()
    {
        const QSize control(100, 50), picture(20, 10);
        QCOMPARE(BitmapPlace(control, picture, false, false, false), QRect(0, 0, 20, 10));
        QCOMPARE(BitmapPlace(control, picture, false, false, true), QRect(40, 20, 20, 10));
        QCOMPARE(BitmapPlace(control, QSize(10, 10), true, true, true), QRect(25, 0, 50, 50));
        QVERIFY(BitmapPlace(control, QSize(), true, false, false).isEmpty());
        // Transparent: the key colour shows what lies beneath.
        QImage glyph(4, 4, QImage::Format_RGB32);
        glyph.fill(qRgb(255, 0, 255));
        glyph.setPixel(1, 1, qRgb(10, 20, 30));
        TqBitmap bitmap;
        bitmap.SetBitmap(QPixmap::fromImage(glyph));
        bitmap.SetStretch(true);   // 25 x 25 pixels each
        bitmap.SetTransparent(true);
        const QImage shown = bitmap.RenderImage(qRgb(0, 128, 0));
        QCOMPARE(shown.pixel(30, 30), qRgb(10, 20, 30));
        QCOMPARE(shown.pixel(10, 10), qRgb(0, 128, 0));
        bitmap.SetAutoSize(true);
        QCOMPARE(bitmap.size(), QSize(4, 4));
    }

    void animationFramesInOrder()
    {
        QImage strip(64, 16, QImage::Format_RGB32);
        for (int f = 0; f < 4; ++f)
            for (int y = 0; y < 16; ++y)
                for (int x = 0; x < 16; ++x)
                    strip.setPixel(f * 16 + x, y, qRgb(f * 60, 0, 0));
        TqAnimated animation;
        animation.SetBitmap(QPixmap::fromImage(strip));
        QCOMPARE(animation.FrameCount(), 4);   // square frames from the strip
        QCOMPARE(animation.FrameImage(2).pixel(5, 5), qRgb(120, 0, 0));
        QList<int> seen;
        connect(&animation, &TqAnimated::OnFrame, &animation, [&] { seen << animation.Frame(); });
        animation.SetInterval(5);
        animation.SetLoop(false);
        animation.SetPlay(true);
        QTRY_VERIFY(!animation.Play());   // it stops on the last frame
        QCOMPARE(seen, (QList<int>{1, 2, 3}));
        QCOMPARE(animation.RenderImage().pixel(5, 5), qRgb(180, 0, 0));
        // Looping, it goes round.
        seen.clear();
        animation.SetLoop(true);
        animation.SetPlay(true);
        QTRY_VERIFY(seen.size() >= 5);
        animation.SetPlay(false);
        QCOMPARE(seen.mid(0, 5), (QList<int>{0, 1, 2, 3, 0}));
        // Frames given: the strip is cut in two.
        animation.SetFrames(2);
        QCOMPARE(animation.FrameImage(1).width(), 32);
        animation.SetFrame(7);
        QCOMPARE(animation.Frame(), 1);
    }

    void glyphPlacesForEachLayout()
    {
        const QRect client(0, 0, 100, 40);
        const QSize glyph(16, 16), text(40, 14);
        struct Case
        {
            TButtonLayout layout;
            int margin;
            QRect glyph, caption;
        } cases[] = {
            {blGlyphLeft, -1, QRect(20, 12, 16, 16), QRect(40, 0, 40, 40)},
            {blGlyphRight, -1, QRect(64, 12, 16, 16), QRect(20, 0, 40, 40)},
            {blGlyphTop, -1, QRect(42, 3, 16, 16), QRect(0, 23, 100, 14)},
            {blGlyphBottom, -1, QRect(42, 21, 16, 16), QRect(0, 3, 100, 14)},
            {blGlyphLeft, 5, QRect(5, 12, 16, 16), QRect(25, 0, 40, 40)},
        };
        for (const Case &c : cases) {
            const TGlyphPlaces p = GlyphPlaces(client, glyph, text, c.layout, c.margin, 4);
            QCOMPARE(p.glyph, c.glyph);
            QCOMPARE(p.caption, c.caption);
        }
        // Without a caption the glyph is centred.
        QCOMPARE(GlyphPlaces(client, glyph, QSize(), blGlyphLeft, -1, 4).glyph, QRect(42, 12, 16, 16));
    }

    void glyphButtons()
    {
        QImage glyph(8, 8, QImage::Format_RGB32);
        glyph.fill(qRgb(255, 0, 255));
        glyph.setPixel(4, 4, qRgb(255, 0, 0));
        glyph.setPixel(5, 4, qRgb(255, 0, 0));
        ShownOnForm<TqBitColBtn> shown;
        TqBitColBtn *button = shown.control;
        button->SetBounds(0, 0, 60, 30);
        button->SetColor(0x00C0FFC0);
        button->SetGlyph(QPixmap::fromImage(glyph));
        const QPoint at = button->Places().glyph.topLeft();
        QCOMPARE(at, QPoint(26, 11));   // no caption: in the middle
        QCOMPARE(button->RenderImage().pixel(at + QPoint(1, 1)), qRgb(192, 255, 192));   // the key shows the face
        QTest::mousePress(button, Qt::LeftButton, {}, QPoint(30, 15));
        QCOMPARE(button->RenderImage().pixel(at + QPoint(5, 5)), qRgb(255, 0, 0));   // pressed: it moves
        QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(30, 15));
        button->setEnabled(false);
        QImage off = button->RenderImage();
        QCOMPARE(off.pixel(at + QPoint(4, 4)), qRgb(76, 76, 76));     // grey (x + y even)
        QCOMPARE(off.pixel(at + QPoint(5, 4)), qRgb(192, 255, 192));  // the checker (odd)
        // With a caption, the glyph keeps clear of it also while the caption is
        // bold (the default button), and the pair stays centred.
        button->setEnabled(true);
        button->SetBounds(0, 0, 120, 30);
        button->SetCaption(QStringLiteral("Measure"));
        const TGlyphPlaces plain = button->Places();
        button->SetDefault(true);
        const TGlyphPlaces bold = button->Places();
        QVERIFY(bold.caption.width() > plain.caption.width());
        QVERIFY(bold.glyph.right() + 4 < bold.caption.left());
        QVERIFY(qAbs(bold.glyph.left() - (119 - bold.caption.right())) <= 1);
        // An icon keeps its own transparency.
        QImage icon(16, 16, QImage::Format_ARGB32);
        icon.fill(Qt::transparent);
        icon.setPixel(8, 8, qRgba(0, 0, 255, 255));
        TqIconColBtn iconButton;
        iconButton.SetBounds(0, 0, 60, 30);
        iconButton.SetColor(0x00C0FFC0);
        iconButton.SetIcon(QIcon(QPixmap::fromImage(icon)));
        const QPoint iat = iconButton.Places().glyph.topLeft();
        const QImage face = iconButton.RenderImage();
        QCOMPARE(face.pixel(iat + QPoint(8, 8)), qRgb(0, 0, 255));
        QCOMPARE(face.pixel(iat + QPoint(2, 2)), qRgb(192, 255, 192));
    }

    void pictureFromResources()
    {
        TqResBitmap picture;
        picture.SetResName(QStringLiteral("gauges/needle.png"));
        QCOMPARE(picture.RenderImage().pixel(1, 1), qRgb(255, 255, 0));
        // A missing name: an empty picture and a word, no crash.
        QStringList missing;
        connect(&picture, &TqResBitmap::OnResourceMissing, &picture,
                [&](QObject *, const QString &name) { missing << name; });
        picture.SetResName(QStringLiteral("gauges/none.png"));
        QVERIFY(!picture.ResourceFound());
        QVERIFY(picture.Bitmap().isNull());
        QCOMPARE(missing, QStringList{"gauges/none.png"});
        try {
            picture.LoadFromResourceName(QStringLiteral(":/nowhere.png"));
            QFAIL("a missing resource raises");
        } catch (const EResNotFound &e) {
            QCOMPARE(QByteArray(e.what()), QByteArray("Resource :/nowhere.png not found"));
        }
    }
};

QTEST_MAIN(tst_Bitmaps)
#include "tst_bitmaps.moc"
