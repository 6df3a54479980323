#include "art_drawing.h"

#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace ArtDrawing {
namespace {

// The palette: deep blues and teal, amber as the single accent.
constexpr QColor Night(0x0b, 0x1f, 0x36);
constexpr QColor Deep(0x13, 0x3d, 0x62);
constexpr QColor Navy(0x1d, 0x4e, 0x7a);
constexpr QColor Teal(0x25, 0xa2, 0x9c);
constexpr QColor TealDark(0x17, 0x74, 0x72);
constexpr QColor TealLight(0x8a, 0xdc, 0xd3);
constexpr QColor TealBright(0x4f, 0xc2, 0xb9);
constexpr QColor Blue(0x2f, 0x6f, 0xaa);
constexpr QColor Accent(0xf2, 0xa3, 0x3a);
constexpr QColor Mist(0xb4, 0xc8, 0xd8);
constexpr QColor Paper(0xfa, 0xfc, 0xfd);
constexpr QColor Ink(0x1b, 0x29, 0x38);
constexpr QColor Steel(0xa9, 0xbb, 0xca);
constexpr QColor SteelLight(0xdc, 0xe5, 0xec);
constexpr QColor SteelDark(0x6c, 0x80, 0x92);
constexpr QColor Rule(0x8c, 0x9d, 0xab);
// Folders stay manila: that is how a folder is recognised at a glance.
constexpr QColor Folder(0xf1, 0xcb, 0x63);
constexpr QColor FolderLight(0xfb, 0xe7, 0xa9);
constexpr QColor FolderBack(0xd6, 0xa6, 0x3c);
constexpr QColor FolderLine(0x86, 0x60, 0x12);

// A response-time trace, normalised to 0..1; one excursion crosses the threshold.
constexpr std::array<qreal, 25> Trace { 0.30, 0.34, 0.31, 0.38, 0.36, 0.42, 0.37, 0.33, 0.40, 0.47, 0.44, 0.52, 0.63,
    0.86, 0.58, 0.46, 0.41, 0.45, 0.39, 0.35, 0.40, 0.37, 0.33, 0.36, 0.34 };
constexpr qreal Threshold = 0.74;
constexpr int PeakIndex = 13;

QFont artFont(int pixelSize, QFont::Weight weight, qreal spacing = 0)
{
    QFont font = QGuiApplication::font();
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    if (spacing != 0)
        font.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
    return font;
}

void fillBackdrop(QPainter& p, const QRectF& r)
{
    QLinearGradient base(r.topLeft(), r.bottomRight());
    base.setColorAt(0, Night);
    base.setColorAt(1, Deep);
    p.fillRect(r, base);
    // A soft light behind the gauge keeps the dark field from looking flat.
    QRadialGradient glow(r.left() + r.width() * 0.2, r.top() + r.height() * 0.15, r.width() * 0.6);
    glow.setColorAt(0, QColor(255, 255, 255, 22));
    glow.setColorAt(1, QColor(255, 255, 255, 0));
    p.fillRect(r, glow);
}

QPointF onCircle(QPointF centre, qreal radius, qreal degrees)
{
    const qreal a = degrees * std::numbers::pi / 180;
    return centre + QPointF(radius * std::cos(a), -radius * std::sin(a));
}

// The product's mark: a dial opening at the bottom, its last stretch in amber, the needle
// resting well inside the normal range.
void drawGauge(QPainter& p, QPointF centre, qreal radius, qreal ring)
{
    constexpr qreal Start = 225;
    constexpr qreal Span = 270;
    constexpr qreal RedSpan = 55;
    constexpr qreal Gap = 7;
    constexpr qreal Needle = 62;

    const QRectF arc(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(255, 255, 255, 28), ring, Qt::SolidLine, Qt::FlatCap));
    p.drawArc(arc, int(Start * 16), int(-Span * 16));
    p.setPen(QPen(Teal, ring, Qt::SolidLine, Qt::FlatCap));
    p.drawArc(arc, int(Start * 16), int(-(Span - RedSpan - Gap) * 16));
    p.setPen(QPen(Accent, ring, Qt::SolidLine, Qt::FlatCap));
    p.drawArc(arc, int((Start - Span + RedSpan) * 16), int(-RedSpan * 16));

    p.setPen(QPen(Paper, std::max(1.0, ring * 0.42), Qt::SolidLine, Qt::RoundCap));
    p.drawLine(centre, onCircle(centre, radius - ring * 1.1, Needle));
    p.setPen(Qt::NoPen);
    p.setBrush(Paper);
    p.drawEllipse(centre, ring * 0.62, ring * 0.62);
}

// The mark on its tile, for the page logo and the window icon.
void drawLogoTile(QPainter& p, int size)
{
    const QRectF tile(0, 0, size, size);
    const qreal corner = size * 0.2;
    QLinearGradient base(tile.topLeft(), tile.bottomRight());
    base.setColorAt(0, Deep);
    base.setColorAt(1, Night);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(base);
    p.drawRoundedRect(tile, corner, corner);
    const qreal radius = size * (size <= 16 ? 0.34 : 0.31);
    const qreal ring = size <= 16 ? 2.2 : size * 0.085;
    drawGauge(p, QPointF(size / 2.0, size * 0.53), radius, ring);
}

// A smooth curve through the trace inside r (Catmull-Rom turned into cubic Béziers).
QPainterPath tracePath(const QRectF& r)
{
    auto point = [&](int i) {
        i = std::clamp(i, 0, int(Trace.size()) - 1);
        return QPointF(r.left() + r.width() * i / (Trace.size() - 1), r.bottom() - r.height() * Trace[i]);
    };
    QPainterPath path(point(0));
    for (int i = 0; i + 1 < int(Trace.size()); ++i) {
        const QPointF c1 = point(i) + (point(i + 1) - point(i - 1)) / 6;
        const QPointF c2 = point(i + 1) - (point(i + 2) - point(i)) / 6;
        path.cubicTo(c1, c2, point(i + 1));
    }
    return path;
}

void drawChart(QPainter& p, const QRectF& r, int columns, int rows, qreal line)
{
    p.setRenderHint(QPainter::Antialiasing, false);
    p.setPen(QPen(QColor(255, 255, 255, 20), 1));
    for (int c = 0; c <= columns; ++c) {
        const int x = qRound(r.left() + r.width() * c / columns);
        p.drawLine(x, qRound(r.top()), x, qRound(r.bottom()));
    }
    for (int row = 0; row < rows; ++row) {
        const int y = qRound(r.top() + r.height() * row / rows);
        p.drawLine(qRound(r.left()), y, qRound(r.right()), y);
    }
    p.setPen(QPen(QColor(255, 255, 255, 70), 1));
    p.drawLine(qRound(r.left()), qRound(r.bottom()), qRound(r.right()), qRound(r.bottom()));

    p.setRenderHint(QPainter::Antialiasing);
    const QPainterPath curve = tracePath(r);
    QPainterPath area = curve;
    area.lineTo(r.bottomRight());
    area.lineTo(r.bottomLeft());
    area.closeSubpath();
    QLinearGradient fill(r.topLeft(), r.bottomLeft());
    fill.setColorAt(0, QColor(Teal.red(), Teal.green(), Teal.blue(), 110));
    fill.setColorAt(1, QColor(Teal.red(), Teal.green(), Teal.blue(), 8));
    p.fillPath(area, fill);

    const qreal limitY = r.bottom() - r.height() * Threshold;
    QPen limit(Accent, std::max(1.0, line * 0.5), Qt::CustomDashLine, Qt::FlatCap);
    limit.setDashPattern({ 5, 4 });
    p.setPen(limit);
    p.drawLine(QPointF(r.left(), limitY), QPointF(r.right(), limitY));

    p.setPen(QPen(TealLight, line, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPath(curve);

    const QPointF peak(
        r.left() + r.width() * PeakIndex / (Trace.size() - 1), r.bottom() - r.height() * Trace[PeakIndex]);
    p.setPen(QPen(Accent, line));
    p.setBrush(Night);
    p.drawEllipse(peak, line * 2.2, line * 2.2);
}

// The small tree images are drawn pixel by pixel where edges are straight, so they stay sharp.
class Pixels
{
public:
    explicit Pixels(QPainter& painter)
        : p(painter)
    { }
    void fill(int x, int y, int w, int h, const QColor& c) { p.fillRect(x, y, w, h, c); }
    void dot(int x, int y, const QColor& c) { p.fillRect(x, y, 1, 1, c); }
    void hline(int x1, int x2, int y, const QColor& c) { p.fillRect(x1, y, x2 - x1 + 1, 1, c); }
    void vline(int x, int y1, int y2, const QColor& c) { p.fillRect(x, y1, 1, y2 - y1 + 1, c); }
    void box(int x, int y, int w, int h, const QColor& inside, const QColor& line)
    {
        fill(x, y, w, h, line);
        fill(x + 1, y + 1, w - 2, h - 2, inside);
    }

private:
    QPainter& p;
};

void drawServer(QPainter& p)
{
    Pixels px(p);
    px.box(2, 1, 12, 14, Steel, Ink);
    for (int unit = 0; unit < 3; ++unit) {
        const int top = 2 + unit * 4;
        px.hline(3, 12, top, SteelLight);
        px.hline(4, 8, top + 1, SteelDark);
        px.dot(11, top + 1, unit == 1 ? Accent : Teal);
        if (unit < 2)
            px.hline(3, 12, top + 3, Ink);
    }
}

void drawOSCollect(QPainter& p)
{
    Pixels px(p);
    px.box(1, 2, 14, 12, Paper, Ink);
    constexpr std::array<int, 3> heights { 4, 8, 6 };
    for (int i = 0; i < int(heights.size()); ++i) {
        const int x = 3 + i * 4;
        const int h = heights[i];
        const bool tallest = i == 1;
        px.fill(x, 13 - h, 2, h, tallest ? Blue : Teal);
        px.vline(x + 1, 13 - h, 12, tallest ? Navy : TealDark);
    }
}

void drawApps(QPainter& p)
{
    Pixels px(p);
    px.box(1, 1, 14, 14, Paper, Ink);
    px.hline(2, 13, 2, Navy);
    px.hline(2, 13, 3, Navy);
    px.dot(12, 2, TealLight);
    px.hline(2, 13, 4, Ink);
    px.fill(3, 6, 4, 3, Teal);
    px.fill(9, 6, 4, 3, Navy);
    px.fill(3, 10, 4, 3, Navy);
    px.fill(9, 10, 4, 3, Teal);
}

void drawTransGroup(QPainter& p)
{
    Pixels px(p);
    px.fill(4, 2, 6, 12, Paper);
    px.fill(10, 5, 2, 9, Paper);
    px.vline(3, 1, 14, Ink);
    px.hline(3, 12, 14, Ink);
    px.vline(12, 4, 14, Ink);
    px.hline(3, 9, 1, Ink);
    px.dot(10, 2, Ink);
    px.dot(11, 3, Ink);
    px.vline(9, 1, 4, Ink);
    px.hline(9, 11, 4, Ink);
    px.dot(10, 3, SteelLight);
    // Log entries: a stamp in navy, then the message.
    for (int row = 0; row < 4; ++row) {
        const int y = 6 + row * 2;
        px.hline(5, 6, y, Navy);
        px.hline(8, row % 2 ? 9 : 10, y, Rule);
    }
}

void drawFolderBack(Pixels& px, int right, const QColor& inside)
{
    px.hline(2, 5, 2, FolderLine);
    px.dot(1, 3, FolderLine);
    px.dot(6, 3, FolderLine);
    px.hline(2, 5, 3, inside);
    px.box(1, 4, right, 10, inside, FolderLine);
}

void drawCloseFolder(QPainter& p)
{
    Pixels px(p);
    drawFolderBack(px, 14, Folder);
    px.hline(2, 13, 5, FolderLight);
    px.hline(2, 13, 12, FolderBack);
}

void drawOpenFolder(QPainter& p)
{
    Pixels px(p);
    drawFolderBack(px, 13, FolderBack);
    // The front flap leans forward: its sides step outward one pixel every two rows.
    constexpr int Top = 7;
    constexpr int Bottom = 13;
    for (int y = Top; y <= Bottom; ++y) {
        const int left = 4 - (y - Top + 1) / 2;
        const int right = 15 - (y - Top + 1) / 2;
        if (y == Top || y == Bottom) {
            px.hline(std::max(left, 1), right, y, FolderLine);
            continue;
        }
        px.dot(left, y, FolderLine);
        px.hline(left + 1, right - 1, y, y == Top + 1 ? FolderLight : Folder);
        px.dot(right, y, FolderLine);
    }
}

void drawData(QPainter& p)
{
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF top(2.5, 1.5, 11, 4);
    const qreal bottom = 12.5;
    QPainterPath body;
    body.moveTo(top.left(), top.center().y());
    body.lineTo(top.left(), bottom);
    body.arcTo(QRectF(top.left(), bottom - 2, top.width(), 4), 180, 180);
    body.lineTo(top.right(), top.center().y());
    body.closeSubpath();
    QLinearGradient shade(top.left(), 0, top.right(), 0);
    shade.setColorAt(0, TealDark);
    shade.setColorAt(0.4, TealBright);
    shade.setColorAt(1, TealDark);
    p.setPen(QPen(Ink, 1));
    p.setBrush(shade);
    p.drawPath(body);
    // Bands between the platters.
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(TealLight, 1));
    for (qreal y : { 6.5, 9.5 })
        p.drawArc(QRectF(top.left() + 1, y - 2, top.width() - 2, 4), 200 * 16, 140 * 16);
    p.setPen(QPen(Ink, 1));
    p.setBrush(TealLight);
    p.drawEllipse(top);
}

void drawID(QPainter& p)
{
    Pixels px(p);
    px.box(1, 2, 14, 12, Paper, Ink);
    px.hline(2, 13, 3, Navy);
    // Portrait: a round head over shoulders that the frame crops.
    p.setRenderHint(QPainter::Antialiasing);
    p.setClipRect(2, 4, 12, 9);
    p.setPen(Qt::NoPen);
    p.setBrush(Blue);
    p.drawEllipse(QPointF(5, 7), 2, 2);
    p.drawEllipse(QPointF(5, 14), 3.5, 4);
    p.setClipping(false);
    px.hline(9, 12, 6, Rule);
    px.hline(9, 12, 8, Rule);
    px.hline(9, 11, 10, Teal);
}

void drawSLA(QPainter& p)
{
    Pixels px(p);
    px.hline(6, 9, 1, Ink);
    px.fill(7, 2, 2, 2, Ink);
    // Circles centred on a pixel centre with whole radii keep their rims sharp.
    p.setRenderHint(QPainter::Antialiasing);
    const QPointF centre(7.5, 9.5);
    p.setPen(QPen(Ink, 1));
    p.setBrush(Paper);
    p.drawEllipse(centre, 5, 5);
    p.setPen(QPen(Ink, 2, Qt::SolidLine, Qt::FlatCap));
    p.drawLine(onCircle(centre, 5.5, 45), onCircle(centre, 7.2, 45));
    // The target window, then the hand inside it.
    p.setPen(Qt::NoPen);
    p.setBrush(TealBright);
    p.drawPie(QRectF(centre.x() - 4, centre.y() - 4, 8, 8), 90 * 16, -80 * 16);
    p.setPen(QPen(Ink, 1.2, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(centre, onCircle(centre, 3.5, 45));
    p.setPen(Qt::NoPen);
    p.setBrush(Ink);
    p.drawEllipse(centre, 1, 1);
}

void drawSpecRun(QPainter& p)
{
    p.setRenderHint(QPainter::Antialiasing);
    const QPointF centre(6.5, 6.5);
    p.setPen(QPen(Ink, 1));
    p.setBrush(Paper);
    p.drawEllipse(centre, 5, 5);
    p.setPen(QPen(Navy, 1, Qt::SolidLine, Qt::FlatCap));
    p.drawLine(centre, centre + QPointF(0, -3.5));
    p.drawLine(centre, centre + QPointF(-2.5, 0));
    const QPolygonF play({ QPointF(7.5, 7.5), QPointF(14.5, 11.5), QPointF(7.5, 15.5) });
    p.setPen(QPen(Ink, 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    p.setBrush(Teal);
    p.drawPolygon(play);
}

void drawTrans(QPainter& p)
{
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Ink, 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    // Two arrows in opposite directions: a request and its answer.
    const QPolygonF out({ QPointF(1.5, 3.5), QPointF(9.5, 3.5), QPointF(9.5, 1.5), QPointF(14.5, 5), QPointF(9.5, 8.5),
        QPointF(9.5, 6.5), QPointF(1.5, 6.5) });
    p.setBrush(Blue);
    p.drawPolygon(out);
    const QPolygonF back({ QPointF(14.5, 9.5), QPointF(6.5, 9.5), QPointF(6.5, 7.5), QPointF(1.5, 11),
        QPointF(6.5, 14.5), QPointF(6.5, 12.5), QPointF(14.5, 12.5) });
    p.setBrush(Teal);
    p.drawPolygon(back);
}

template<typename Draw>
QImage drawn(QSize size, Draw draw)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    draw(p);
    return image;
}

// Drawn on the key grey, which then becomes transparent: the straight edges stay hard.
QImage keyed(void (*draw)(QPainter&))
{
    QImage image(ProductArt::TreeImageSize, QImage::Format_ARGB32);
    image.fill(TransparencyKey);
    {
        QPainter p(&image);
        draw(p);
    }
    const QRgb key = TransparencyKey.rgb();
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (line[x] == key)
                line[x] = qRgba(0, 0, 0, 0);
        }
    }
    return image;
}

} // namespace

QImage splash()
{
    return drawn(ProductArt::SplashSize, [](QPainter& p) {
        const QRect r(QPoint(0, 0), ProductArt::SplashSize);
        fillBackdrop(p, r);
        drawGauge(p, QPointF(70, 78), 34, 8);

        p.setPen(Paper);
        p.setFont(artFont(34, QFont::Bold));
        p.drawText(QPointF(126, 82), QStringLiteral("Orvanta Monitor"));
        p.setPen(TealLight);
        p.setFont(artFont(15, QFont::DemiBold, 0.5));
        p.drawText(QPointF(128, 108), QStringLiteral("Version ") + QLatin1String(QD7_VERSION));

        drawChart(p, QRectF(32, 156, 457, 168), 12, 4, 2.2);

        p.setRenderHint(QPainter::Antialiasing, false);
        p.setPen(QColor(255, 255, 255, 45));
        p.drawLine(32, 350, 488, 350);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(Paper);
        p.setFont(artFont(17, QFont::Bold, 1.5));
        p.drawText(QPointF(32, 378), QStringLiteral("Vantrel"));
        p.setPen(Mist);
        p.setFont(artFont(12, QFont::Normal, 0.5));
        p.drawText(
            QRectF(260, 360, 229, 24), Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("Configuration Console"));
    });
}

QImage aboutPicture()
{
    return drawn(ProductArt::AboutPictureSize, [](QPainter& p) {
        const QRect r(QPoint(0, 0), ProductArt::AboutPictureSize);
        fillBackdrop(p, r);
        drawGauge(p, QPointF(72.5, 58), 32, 7);
        p.setPen(Paper);
        p.setFont(artFont(20, QFont::Bold));
        p.drawText(QRectF(0, 100, r.width(), 26), Qt::AlignCenter, QStringLiteral("Orvanta"));
        p.setPen(TealLight);
        p.setFont(artFont(10, QFont::DemiBold, 3));
        p.drawText(QRectF(0, 124, r.width() + 3, 16), Qt::AlignCenter, QStringLiteral("MONITOR"));
        drawChart(p, QRectF(14, 148, 117, 40), 6, 2, 1.5);
    });
}

QImage logoTile(int size)
{
    return drawn(QSize(size, size), [size](QPainter& p) { drawLogoTile(p, size); });
}

QImage treeImage(ProductArt::TreeImage image)
{
    using ProductArt::TreeImage;
    switch (image) {
    case TreeImage::Server:
        return keyed(drawServer);
    case TreeImage::OSCollect:
        return keyed(drawOSCollect);
    case TreeImage::Apps:
        return keyed(drawApps);
    case TreeImage::TransGroup:
        return keyed(drawTransGroup);
    case TreeImage::CloseFolder:
        return keyed(drawCloseFolder);
    case TreeImage::Data:
        return keyed(drawData);
    case TreeImage::ID:
        return keyed(drawID);
    case TreeImage::OpenFolder:
        return keyed(drawOpenFolder);
    case TreeImage::SLA:
        return keyed(drawSLA);
    case TreeImage::SpecRun:
        return keyed(drawSpecRun);
    case TreeImage::Trans:
        return keyed(drawTrans);
    }
    return QImage();
}

} // namespace ArtDrawing
