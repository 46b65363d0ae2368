// makePictures DRAWING.svg FOLDER PIXELS...: the drawing as FOLDER/PIXELS.png, for desktops that
// show no SVG. Runs while the program is built. Exit status 1 with one line when a file cannot be
// read or written.

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

namespace {

int fail(const QString &text)
{
    QTextStream(stderr) << "makePictures: " << text << '\n';
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 4)
        return fail(QStringLiteral("usage: makePictures DRAWING.svg FOLDER PIXELS..."));
    QSvgRenderer drawing;
    if (!drawing.load(QFile::decodeName(argv[1])))
        return fail(QStringLiteral("the drawing cannot be read"));
    for (int i = 3; i < argc; ++i) {
        const int pixels = QByteArray(argv[i]).toInt();
        QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        drawing.render(&painter, QRectF(0, 0, pixels, pixels));
        painter.end();
        if (!image.save(QStringLiteral("%1/%2.png").arg(QFile::decodeName(argv[2])).arg(pixels),
                        "PNG"))
            return fail(QStringLiteral("a picture cannot be written"));
    }
    return 0;
}
