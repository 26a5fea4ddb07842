#include "chartcontrol/paint/PictureFormat.h"
#include "support/SampleCharts.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QImage>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace {

using Counts = QHash<QRgb, int>;

/// The most frequent colour of each cube of colours whose edge is so long.
QList<QRgb> MostFrequentOf(const Counts& counts, int edge) {
    QHash<QRgb, QRgb> best;
    for (auto colour = counts.keyBegin(); colour != counts.keyEnd(); ++colour) {
        const QRgb cube = qRgb(qRed(*colour) / edge, qGreen(*colour) / edge, qBlue(*colour) / edge);
        const auto found = best.find(cube);
        const auto rank = [&](QRgb of) { return std::pair(counts[of], of); };
        if (found == best.end() || rank(*found) < rank(*colour)) best[cube] = *colour;
    }
    QList<QRgb> colours = best.values();
    std::sort(colours.begin(), colours.end());
    return colours;
}

/// The picture in at most 256 of its colours, in a third of the bytes: fills and texts keep theirs, what lies
/// between them gets a near one.
QImage InFewColours(const QImage& picture) {
    constexpr qsizetype most = 256;
    Counts counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y)];
    QList<QRgb> colours = MostFrequentOf(counts, 1);
    for (int edge = 2; colours.size() > most; ++edge) colours = MostFrequentOf(counts, edge);
    return picture.convertToFormat(QImage::Format_Indexed8, colours, Qt::ThresholdDither);
}

} // namespace

// Draws every sample chart (or those whose names are given) as PNG into a folder: gallery FOLDER SCALE [NAME
// ...].
int main(int argc, char** argv) {
    using namespace QmChart6;
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 3) {
        std::fputs("usage: gallery FOLDER SCALE [NAME ...]\n", stderr);
        return 2;
    }
    const QDir folder(arguments[1]);
    const int scale = arguments[2].toInt();
    folder.mkpath(QStringLiteral("."));
    for (const Samples::Sample& sample : Samples::All()) {
        const QString name = QString::fromStdString(sample.name);
        if (arguments.size() > 3 && !arguments.mid(3).contains(name)) continue;
        QFile file(folder.filePath(name + QStringLiteral(".png")));
        if (!file.open(QIODevice::WriteOnly)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file.fileName()));
            return 1;
        }
        const QByteArray bytes =
            EncodePicture({sample.make(), sample.width, sample.height}, PictureFormat::Png, scale);
        constexpr int smallest = 0;
        InFewColours(QImage::fromData(bytes)).save(&file, "PNG", smallest);
    }
    return 0;
}
