#include "chartcontrol/paint/PictureFormat.h"
#include "support/SampleCharts.h"

#include "chartcontrol/paint/PaintScene.h"
#include "chartcontrol/paint/QtTextMeasurer.h"
#include <QPainter>
#include <QImage>
#include <QDir>
#include <QFile>
#include <QGuiApplication>

#include <cstdio>

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
        const Scene scene = LayOut(sample.make(), {{sample.width * 0.75, sample.height * 0.75}, scale * 4 / 3.0}, QtTextMeasurer());
        for (const QString& w : scene.warnings) std::printf("%s: %s\n", sample.name.c_str(), qPrintable(w));
        QImage image(sample.width * scale, sample.height * scale, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        PaintScene(scene, painter, scale * 4 / 3.0, PaintTarget::Raster);
        painter.end();
        image.save(folder.filePath(name + QStringLiteral(".png")));
        continue;
        QFile file(folder.filePath(name + QStringLiteral(".png")));
        if (!file.open(QIODevice::WriteOnly)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file.fileName()));
            return 1;
        }
    }
    return 0;
}
