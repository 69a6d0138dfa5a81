// What it gains to write into a window's memory, beside painters that do the same.
#include "Platform/Graphics/PreparedPicture.h"
#include "tests/support/GpuPicture.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

namespace {

double processorTime() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

/// How many times as long `work` takes with painters: the median of eleven pairs, taken in turn.
template <typename Work>
double gain(Work work) {
    const auto timeOf = [&work] {
        const double begin = processorTime();
        for (int turn = 0; turn < 30; ++turn)
            work();
        return processorTime() - begin;
    };
    work();
    std::vector<double> ratios;
    for (int pair = 0; pair < 11; ++pair) {
        const double written = timeOf();
        const platform::PaintersOnly closed;
        ratios.push_back(timeOf() / written);
    }
    std::sort(ratios.begin(), ratios.end());
    return ratios[ratios.size() / 2];
}

/// A thousand pictures of a button's size, opaque but for their edges.
double gainOfPictures(int scale) {
    QImage button(90 * scale, 24 * scale, QImage::Format_ARGB32_Premultiplied);
    button.fill(QColor(20, 30, 40, 128));
    QPainter(&button).fillRect(button.rect().adjusted(4, 4, -4, -4), QColor(90, 80, 70));
    button.setDevicePixelRatio(scale);
    const platform::PreparedPicture picture(button);
    QImage page(QSize(1800, 1200) * scale, QImage::Format_RGB32);
    page.setDevicePixelRatio(scale);
    return gain([&] {
        QPainter painter(&page);
        for (int index = 0; index < 1000; ++index)
            picture.draw(painter, QPointF(index % 20 * 90, index / 20 * 24));
    });
}

/// Frames of the welcome window's header, of one colour: what is not the shader's own time.
double gainOfFrames() {
    GpuFrames frames;
    platform::GpuView view;
    view.resize(400, 300);
    view.setDevice(platform::GpuDevice::systemDefault());
    view.setDelegate(&frames);
    view.show();
    QCoreApplication::processEvents();
    return gain([&view] {
        view.setNeedsDisplay();
        view.repaint();
    });
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    std::printf("times as fast as with painters: pictures %.1f at 1x, %.1f at 2x", gainOfPictures(1),
                gainOfPictures(2));
    if (platform::GpuDevice::systemDefault())
        std::printf(", frames of 400x300 %.2f", gainOfFrames());
    std::printf("\n");
}
