#include "ui/Symbols.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace veldmark {

namespace {

QString path(const QString &name)
{
    return QStringLiteral(":/icons/%1.svg").arg(name);
}

} // namespace

bool Symbols::exists(const QString &name)
{
    return QFile::exists(path(name));
}

QImage Symbols::image(const QString &name, int pixels, const QColor &color)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QFile file(path(name));
    QSvgRenderer renderer;
    if (file.open(QIODevice::ReadOnly) && renderer.load(file.readAll())) {
        renderer.render(&painter, QRectF(0, 0, pixels, pixels));
    } else {
        painter.setPen(QPen(Qt::black, pixels / 12.0));
        painter.drawRect(QRectF(pixels * 0.2, pixels * 0.2, pixels * 0.6, pixels * 0.6));
    }
    // The drawings are black; only their shape is used.
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    return image;
}

QImage SymbolProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const qsizetype slash = id.indexOf(u'/');
    const int pixels = requestedSize.width() > 0 ? requestedSize.width() : 24;
    const QImage image = Symbols::image(id.left(slash), pixels, QColor(id.mid(slash + 1)));
    *size = image.size();
    return image;
}

} // namespace veldmark
