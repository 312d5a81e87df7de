// draw_icon SVG SIDE PNG: draws an icon of SIDE by SIDE pixels.

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char** argv)
{
    const int side = argc == 4 ? QByteArray(argv[2]).toInt() : 0;
    if (side <= 0) {
        std::fputs("usage: draw_icon SVG SIDE PNG\n", stderr);
        return 2;
    }
    QSvgRenderer renderer(QString::fromLocal8Bit(argv[1]));
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    if (renderer.isValid() && image.save(QString::fromLocal8Bit(argv[3]), "PNG")) return 0;
    std::fprintf(stderr, "%s: can't be drawn as %s\n", argv[1], argv[3]);
    return 1;
}
