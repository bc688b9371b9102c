// SPDX-License-Identifier: GPL-3.0-or-later
// tavi-make-icons DIR: writes the program's icons for the desktop into DIR, as
// the icon theme lays them out: hicolor/NxN/apps/ID.png in the usual sizes and
// hicolor/scalable/apps/ID.svg.
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <cstdio>

#include "ui/app_icon.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: tavi-make-icons DIR\n");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QDir out(QString::fromLocal8Bit(argv[1]));
    const QString id = QString::fromLatin1(tavi::ui::kAppId);
    for (int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        const QString dir = out.filePath(QStringLiteral("hicolor/%1x%1/apps").arg(size));
        if (!QDir().mkpath(dir) ||
            !tavi::ui::AppIconImage(size).save(QDir(dir).filePath(id + ".png"))) {
            std::fprintf(stderr, "tavi-make-icons: cannot write %s\n", qPrintable(dir));
            return 1;
        }
    }
    const QString dir = out.filePath(QStringLiteral("hicolor/scalable/apps"));
    QFile svg(QDir(dir).filePath(id + ".svg"));
    if (!QDir().mkpath(dir) || !svg.open(QIODevice::WriteOnly) ||
        svg.write(tavi::ui::AppIconSvg()) < 0) {
        std::fprintf(stderr, "tavi-make-icons: cannot write %s\n", qPrintable(svg.fileName()));
        return 1;
    }
    return 0;
}
