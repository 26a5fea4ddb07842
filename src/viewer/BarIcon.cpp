#include "viewer/BarIcon.h"

#include <QBuffer>
#include <QFile>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPalette>

#include <memory>

namespace QmChart6 {

namespace {

constexpr double DisabledOpacity = 0.38;

QImage Drawn(const QByteArray& svg, const QSize& pixels) {
    QBuffer buffer;
    buffer.setData(svg);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "svg");
    reader.setScaledSize(pixels);
    return reader.read();
}

class BarIconEngine : public QIconEngine {
public:
    explicit BarIconEngine(QByteArray svg) : svg_(std::move(svg)) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State /*state*/) override {
        const double ratio = painter->device() != nullptr ? painter->device()->devicePixelRatioF() : 1;
        const QImage image = Drawn(svg_, (QSizeF(place.size()) * ratio).toSize());
        painter->save();
        if (mode == QIcon::Disabled) painter->setOpacity(painter->opacity() * DisabledOpacity);
        painter->drawImage(place, image);
        painter->restore();
    }

    QPixmap pixmap(const QSize& pixels, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(pixels);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, {{}, pixels}, mode, state);
        return pixmap;
    }

    [[nodiscard]] QIconEngine* clone() const override {
        return std::make_unique<BarIconEngine>(*this).release(); // the new icon owns it
    }

private:
    QByteArray svg_;
};

} // namespace

QIcon BarIcon(const QString& file, const QPalette& palette) {
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) return {};
    QByteArray svg = source.readAll();
    svg.replace("currentColor", palette.color(QPalette::Active, QPalette::ButtonText).name().toLatin1());
    if (Drawn(svg, {1, 1}).isNull()) return {};
    return QIcon(std::make_unique<BarIconEngine>(std::move(svg)).release()); // the icon owns it
}

} // namespace QmChart6
