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
    BarIconEngine(QString file, const QColor& colour) : file_(std::move(file)), colour_(colour) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State /*state*/) override {
        const double ratio = painter->device() != nullptr ? painter->device()->devicePixelRatioF() : 1;
        const QSize pixels = (QSizeF(place.size()) * ratio).toSize();
        if (drawn_.size() != pixels) drawn_ = Drawn(Coloured(), pixels);
        painter->save();
        if (mode == QIcon::Disabled) painter->setOpacity(painter->opacity() * DisabledOpacity);
        painter->drawImage(place, drawn_);
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
    [[nodiscard]] QByteArray Coloured() const {
        QFile file(file_);
        if (!file.open(QIODevice::ReadOnly)) return {};
        return file.readAll().replace("currentColor", colour_.name().toLatin1());
    }

    QString file_;
    QColor colour_;
    QImage drawn_; // as it was painted last
};

} // namespace

QIcon BarIcon(const QString& file, const QPalette& palette) {
    const QColor colour = palette.color(QPalette::Active, QPalette::ButtonText);
    return QIcon(std::make_unique<BarIconEngine>(file, colour).release()); // the icon owns it
}

bool CanDrawBarIcons() {
    return QImageReader::supportedImageFormats().contains("svg");
}

} // namespace QmChart6
