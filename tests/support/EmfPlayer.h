#pragma once

#include <QByteArray>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cstdint>
#include <map>

namespace QmChart6 {

/// Plays the records of an enhanced metafile that charts are written with, as the format's public description
/// says ([MS-EMF]): an independent reader for tests.
class EmfPlayer {
public:
    explicit EmfPlayer(QByteArray bytes) : bytes_(std::move(bytes)) {}

    /// The picture on white, stretched to that size in pixels.
    QImage Play(QSize pixels);
    [[nodiscard]] bool HasText() const { return hasText_; }

private:
    struct TextFont {
        QFont font;
        double angle = 0;
    };

    [[nodiscard]] std::uint32_t U32(qsizetype at) const;
    [[nodiscard]] int I32(qsizetype at) const { return static_cast<int>(U32(at)); }
    [[nodiscard]] std::uint32_t U16(qsizetype at) const;
    [[nodiscard]] QColor ColourAt(qsizetype at) const;
    [[nodiscard]] QRectF RectAt(qsizetype at) const;
    [[nodiscard]] QPolygonF PointsAt(qsizetype at, int count) const;

    void Record(qsizetype at, QPainter& painter);
    void Select(std::uint32_t object, QPainter& painter);
    void Shape(qsizetype at, bool closed, QPainter& painter);
    void Shapes(qsizetype at, bool closed, QPainter& painter);
    void Font(qsizetype at);
    void Text(qsizetype at, QPainter& painter);
    void Blend(qsizetype at, QPainter& painter);

    QByteArray bytes_;
    bool hasText_ = false;
    std::map<std::uint32_t, QPen> pens_;
    std::map<std::uint32_t, QBrush> brushes_;
    std::map<std::uint32_t, TextFont> fonts_;
    TextFont font_;
    QColor ink_;
    std::uint32_t alignment_ = 0;
    bool inPath_ = false;
    QPainterPath path_;
};

} // namespace QmChart6
