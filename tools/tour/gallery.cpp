// SPDX-License-Identifier: MIT
// Takes a picture of every window as it is after the start-up, and one sheet with all of them.
// usage: gallery FOLDER [POINTS [light|dark]]: pictures for FOLDER, with a font of that size instead of the
// desktop's, and in those colours
#include "app/startup.h"
#include "shell/status.h"
#include "tests/support/scratch_directory.h"
#include "toolkit/application.h"
#include "toolkit/frame.h"
#include "ui/windows.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include <fmt/format.h>
#include <unistd.h>

namespace {

constexpr int sheet_width = 2400;
constexpr int gap = 16;

struct Picture {
    QPixmap pixmap;
    QString title;
};

Picture picture_of(Frame& window) {
    window.open();
    QCoreApplication::processEvents();
    Picture picture{window.widget()->grab(), window.widget()->windowTitle()};
    window.hide();
    return picture;
}

std::string file_name(std::size_t number, const QString& title) {
    std::string name = title.toLower().toStdString();
    std::replace_if(
        name.begin(), name.end(), [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '-');
    return fmt::format("{:02}-{}.png", number, name);
}

/// Lays the pictures out in lines, highest first, each under its title.
QPixmap sheet_of(std::vector<Picture> pictures) {
    std::stable_sort(pictures.begin(), pictures.end(), [](const Picture& a, const Picture& b) {
        return a.pixmap.height() > b.pixmap.height();
    });
    std::vector<QPoint> places;
    QPoint at(gap, gap);
    const int title_height = QFontMetrics(QApplication::font()).height() + 4;
    int line_height = 0;
    for (const Picture& picture : pictures) {
        if (at.x() + picture.pixmap.width() + gap > sheet_width) {
            at = {gap, at.y() + line_height + gap};
            line_height = 0;
        }
        places.push_back(at);
        at.rx() += picture.pixmap.width() + gap;
        line_height = std::max(line_height, picture.pixmap.height() + title_height);
    }
    QPixmap sheet(sheet_width, at.y() + line_height + gap);
    sheet.fill(QColor(0x8a, 0x93, 0xa3));
    QPainter painter(&sheet);
    painter.setPen(Qt::white);
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        painter.drawText(places[i] + QPoint(0, title_height - 6), pictures[i].title);
        painter.drawPixmap(places[i] + QPoint(0, title_height), pictures[i].pixmap);
    }
    return sheet;
}

void set_default_environment(const std::filesystem::path& home) {
    setenv("HOME", home.c_str(), 1);
    setenv("LOGNAME", "tester", 1);
    setenv("SHELL", "/bin/bash", 1);
    setenv("ORVIK_HOME", ORVIK_DATA, 1);
}

int take_pictures(const std::filesystem::path& folder) {
    std::vector<Picture> pictures;
    for (Frame* window : all_windows()) {
        pictures.push_back(picture_of(*window));
        const std::string path = folder / file_name(pictures.size() - 1, pictures.back().title);
        if (!pictures.back().pixmap.save(QString::fromStdString(path))) {
            std::fprintf(stderr, "gallery: cannot write %s\n", path.c_str());
            return 1;
        }
    }
    const std::string path = folder / "all-windows.png";
    if (!sheet_of(std::move(pictures)).save(QString::fromStdString(path))) {
        std::fprintf(stderr, "gallery: cannot write %s\n", path.c_str());
        return 1;
    }
    std::printf("gallery: %s\n", path.c_str());
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2 || argc > 4) {
        std::fprintf(stderr, "usage: gallery FOLDER [POINTS [light|dark]]\n");
        return 2;
    }
    if (argc > 2) {
        QApplication::setFont(QFont(QStringLiteral("sans-serif"), std::atoi(argv[2])));
    }
    const std::filesystem::path folder = std::filesystem::absolute(argv[1]);
    std::filesystem::create_directories(folder);
    const ScratchDirectory home;
    set_default_environment(home.path());
    start_up({argv[0], "-xrm", std::string("Orvik.Palette: ") + (argc > 3 ? argv[3] : "light")});
    const int status = take_pictures(folder);
    end_status_display();
    destroy_windows();
    xv_destroy();
    return status;
}
