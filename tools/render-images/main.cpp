// orvale-render-images SOURCE_DIR OUTPUT_DIR
//
// Renders every SVG file of SOURCE_DIR to NAME.png at its own size and NAME@2x.png at twice it,
// draws the panel looks of SOURCE_DIR/backgrounds.json into their parts at both scales, and writes
// OUTPUT_DIR/images.qrc listing them all under the prefix /images.
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>
#include <cstdio>

#include "BackgroundLook.h"

namespace {

QString scaledName(const QString& name, int scale) {
    if (scale == 1) {
        return name;
    }
    return name.chopped(4) + QStringLiteral("@%1x.png").arg(scale);
}

bool save(const QImage& image, const QDir& output, const QString& name, QStringList& written) {
    if (!image.save(output.filePath(name), "PNG")) {
        std::fprintf(stderr, "orvale-render-images: cannot write %s\n", qPrintable(name));
        return false;
    }
    written << name;
    return true;
}

bool renderSvg(const QFileInfo& source, const QDir& output, QStringList& written) {
    QSvgRenderer renderer(source.filePath());
    if (!renderer.isValid()) {
        std::fprintf(stderr, "orvale-render-images: %s is not valid SVG\n",
                     qPrintable(source.fileName()));
        return false;
    }
    const QString name = source.completeBaseName() + QStringLiteral(".png");
    for (const int scale : {1, 2}) {
        QImage image(renderer.defaultSize() * scale, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        renderer.render(&painter);
        painter.end();
        if (!save(image, output, scaledName(name, scale), written)) {
            return false;
        }
    }
    return true;
}

bool renderBackgrounds(const QString& path, const QDir& output, QStringList& written) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "orvale-render-images: cannot read %s\n", qPrintable(path));
        return false;
    }
    const QJsonArray looks = QJsonDocument::fromJson(file.readAll()).object()["looks"].toArray();
    for (const QJsonValue& description : looks) {
        const BackgroundLook look(description.toObject());
        if (!look.problem().isEmpty()) {
            std::fprintf(stderr, "orvale-render-images: %s: %s\n", qPrintable(path),
                         qPrintable(look.problem()));
            return false;
        }
        for (const int scale : {1, 2}) {
            for (const BackgroundLook::Part& part : look.render(scale)) {
                if (!save(part.image, output, scaledName(part.name, scale), written)) {
                    return false;
                }
            }
        }
    }
    return true;
}

bool writeResourceList(const QDir& output, QStringList names) {
    QFile file(output.filePath(QStringLiteral("images.qrc")));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        return false;
    }
    names.sort();
    QTextStream out(&file);
    out << "<RCC>\n  <qresource prefix=\"/images\">\n";
    for (const QString& name : names) {
        out << "    <file>" << name << "</file>\n";
    }
    out << "  </qresource>\n</RCC>\n";
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    // Text in the sources needs the font database, which needs a platform; none is shown.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QGuiApplication app(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: orvale-render-images SOURCE_DIR OUTPUT_DIR\n");
        return 2;
    }
    const QDir sources(QString::fromLocal8Bit(argv[1]));
    const QDir output(QString::fromLocal8Bit(argv[2]));
    if (!output.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "orvale-render-images: cannot create %s\n", argv[2]);
        return 1;
    }

    QStringList written;
    for (const QFileInfo& svg : sources.entryInfoList({QStringLiteral("*.svg")}, QDir::Files)) {
        if (!renderSvg(svg, output, written)) {
            return 1;
        }
    }
    if (!renderBackgrounds(sources.filePath(QStringLiteral("backgrounds.json")), output, written)) {
        return 1;
    }
    return writeResourceList(output, written) ? 0 : 1;
}
