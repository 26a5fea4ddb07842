#pragma once

#include "chartcontrol/layout/Layout.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace QmChart6 {

enum class PictureFormat { Bmp, Png, Svg, Pdf, Emf };

/// What a picture is made of: the chart at a size in pixels, of which so many make an inch. A logical pixel
/// is 1/96 inch.
struct Picture {
    Chart chart;
    int width = 0;
    int height = 0;
    double pixelsPerInch = 96;
};

/// The format that a file name stands for by its extension, case apart; a name with another one, or none, is
/// a metafile (Emf).
PictureFormat FormatOfFileName(const QString& fileName);
/// The extensions that stand for a format: "bmp", the usual one, first.
QStringList PictureExtensions();
/// Device pixels to a pixel of the picture: 2 for "name@2x.png", up to @9x, otherwise 1. Bitmaps only.
int ScaleOfFileName(const QString& fileName);

/// The picture's bytes. `scale` is for Bmp (24 bits) and Png; the vector forms keep text as text, but for
/// Emf, where the reader draws it. Raises error 5 for a size below 1 by 1 or a bitmap too large to hold.
QByteArray EncodePicture(const Picture& picture, PictureFormat format, int scale = 1);

/// Writes a picture in the format and scale of the file's name, whole or not at all: into a temporary file
/// beside it, which then takes its place. Raises 76 (folder missing), 75 (a folder, not a file, or another
/// failure, with the system's own words), 70 (no rights), 61 (disk full).
void SavePicture(const Picture& picture, const QString& fileName);

} // namespace QmChart6
