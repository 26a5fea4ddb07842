#include "chartcontrol/paint/PictureFormat.h"
#include "support/SampleCharts.h"

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
        QFile file(folder.filePath(name + QStringLiteral(".png")));
        if (!file.open(QIODevice::WriteOnly)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file.fileName()));
            return 1;
        }
        file.write(EncodePicture({sample.make(), sample.width, sample.height}, PictureFormat::Png, scale));
    }
    return 0;
}
