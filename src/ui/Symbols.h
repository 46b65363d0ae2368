#pragma once

#include <QColor>
#include <QImage>
#include <QQuickImageProvider>

namespace veldmark {

// The program's symbols: SVG drawings in one colour, by name ("lock.shield.fill").
namespace Symbols {

// The symbol as a square of `pixels`, in `color`. An unknown name gives a plain frame, so that a
// missing drawing is visible and harmless.
QImage image(const QString &name, int pixels, const QColor &color);
bool exists(const QString &name);

} // namespace Symbols

// "image://symbol/NAME/#aarrggbb" for QML; the source size is the size in pixels.
class SymbolProvider final : public QQuickImageProvider {
public:
    SymbolProvider() : QQuickImageProvider(QQuickImageProvider::Image) { }
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

} // namespace veldmark
