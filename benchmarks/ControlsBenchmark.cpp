// What it costs to paint a window full of push buttons, beside Qt's own and beside copying the pixels.
#include "Platform/Core/Bundle.h"
#include "Platform/Graphics/SystemFont.h"
#include "Tidepool/Buttons/StyledButton.h"
#include "tests/support/AllocationCounter.h"

#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <QStandardPaths>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>

using namespace tidepool;
using platform::ControlState;

namespace {

constexpr int columns = 20;
constexpr int rows = 50;
constexpr QSize cellSize(90, 24);
constexpr QSize pageSize(columns* cellSize.width(), rows* cellSize.height());

QImage makePage(qreal scale) {
    QImage image(pageSize * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(QColor(29, 29, 44));
    return image;
}

QString title(int index) {
    return QStringLiteral("Button %1").arg(index);
}

/// Every fourth is pressed, disabled, on, or neither.
template <typename Button, typename SetOn>
void mix(Button& button, int index, SetOn setOn) {
    if (index % 4 == 1)
        button.setDown(true);
    if (index % 4 == 2)
        button.setEnabled(false);
    if (index % 4 == 3)
        setOn(button);
}

/// A thousand buttons in a window that is not shown.
class Page {
public:
    template <typename Make>
    explicit Page(Make make) {
        m_window.setAttribute(Qt::WA_DontShowOnScreen);
        m_window.resize(pageSize);
        for (int index = 0; index < columns * rows; ++index) {
            QWidget* const button = make(index);
            button->setParent(&m_window);
            button->setGeometry(
                QRect({index % columns * cellSize.width(), index / columns * cellSize.height()}, cellSize));
        }
        m_window.show();
        QCoreApplication::processEvents();
    }

    QWidget& window() { return m_window; }

private:
    QWidget m_window;
};

QWidget* styledButton(int index) {
    auto* const button = new StyledButton(title(index));
    button->cell().setButtonType(platform::ButtonCell::ButtonType::pushOnPushOff);
    mix(*button, index, [](StyledButton& on) { on.setState(ControlState::on); });
    return button;
}

/// Says what its style is to draw.
class PlainButton : public QPushButton {
public:
    using QPushButton::initStyleOption;
    using QPushButton::QPushButton;
};

QWidget* plainButton(int index) {
    auto* const button = new PlainButton(title(index));
    button->setCheckable(true);
    mix(*button, index, [](QPushButton& on) { on.setChecked(true); });
    return button;
}

/// The same bitmaps, given to a style sheet.
QString styleSheet(const QString& folder) {
    const auto save = [&](const char* name, const platform::Image& image) {
        const QString path = folder + u'/' + QLatin1String(name) + QStringLiteral(".png");
        image.bitmap(image.size(), 1).save(path);
        return path;
    };
    const ButtonCellStyle& style = sharedStyle<ButtonCellStyle>();
    const auto bezel = [&](const char* name, StyledControlState state) {
        return QStringLiteral("border-image: url(%1) 11 8 11 8; border-width: 11px 8px;")
            .arg(save(name, *style.bezelImage(state)));
    };
    return QStringLiteral("QPushButton { %1 color: #d7d9e1; font: 500 10px 'Inter'; }"
                          "QPushButton:pressed { %2 color: #7d808c; }"
                          "QPushButton:checked { %3 color: #7d808c; }"
                          "QPushButton:disabled { color: #626570; }")
        .arg(bezel("normal", StyledControlState::defaultState),
             bezel("down", StyledControlState::highlighted), bezel("on", StyledControlState::on));
}

void paintChildren(benchmark::State& state, Page& page, qreal scale) {
    QImage image = makePage(scale);
    const auto paint = [&] {
        QPainter painter(&image);
        page.window().render(&painter, {}, {}, QWidget::DrawChildren);
    };
    paint(); // The titles were last drawn at another scale, which is not repainting.
    for (auto _ : state)
        paint();
}

/// The drawing alone, as the button's style does it.
void drawByStyle(benchmark::State& state, Page& page) {
    QImage image = makePage(1);
    const QList<QPushButton*> buttons = page.window().findChildren<QPushButton*>();
    for (auto _ : state) {
        QPainter painter(&image);
        for (QPushButton* const button : buttons) {
            QStyleOptionButton option;
            static_cast<PlainButton*>(button)->initStyleOption(&option);
            const QTransform before = painter.transform();
            painter.translate(button->pos());
            button->style()->drawControl(QStyle::CE_PushButton, &option, &painter, button);
            painter.setTransform(before);
        }
    }
}

/// The drawing alone: no widget paints.
void drawCells(benchmark::State& state, Page& page) {
    QImage image = makePage(1);
    std::vector<std::pair<StyledButton*, QPointF>> buttons;
    for (auto* const button : page.window().findChildren<StyledButton*>())
        buttons.emplace_back(button, button->pos());
    const auto draw = [&] {
        QPainter painter(&image);
        for (const auto& [button, position] : buttons) {
            const QTransform before = painter.transform();
            painter.translate(position);
            button->cell().draw(painter, QRectF(QPointF(), cellSize), button->context());
            painter.setTransform(before);
        }
    };
    draw();
    for (auto _ : state)
        draw();
}

void copyPixels(benchmark::State& state, qreal scale) {
    const QImage source = makePage(scale);
    QImage target = makePage(scale);
    const auto rowLength = static_cast<std::size_t>(cellSize.width() * scale) * 4;
    const int rowsOfButton = static_cast<int>(cellSize.height() * scale);
    for (auto _ : state) {
        // Button by button, as they are painted.
        for (int index = 0; index < columns * rows; ++index)
            for (int y = 0; y < rowsOfButton; ++y) {
                const int line = index / columns * rowsOfButton + y;
                const std::size_t offset = static_cast<std::size_t>(index % columns) * rowLength;
                std::memcpy(target.scanLine(line) + offset, source.constScanLine(line) + offset, rowLength);
            }
        benchmark::ClobberMemory();
    }
}

void lookUp(benchmark::State& state) {
    const ButtonCellStyle& style = sharedStyle<ButtonCellStyle>();
    style.bezelImage(StyledControlState::defaultState);
    std::int64_t flags = 0;
    const AllocationCounter counter;
    for (auto _ : state)
        benchmark::DoNotOptimize(style.bezelImage(StyledControlState{flags++ & 255}));
    state.counters["allocations"] = static_cast<double>(counter.allocations());
}

void changeOneState(benchmark::State& state, Page& page) {
    auto* const button = page.window().findChild<StyledButton*>();
    QImage image = makePage(1);
    bool isDown = false;
    for (auto _ : state) {
        button->setDown(isDown = !isDown);
        QPainter painter(&image);
        page.window().render(&painter, button->pos(), button->geometry(), QWidget::DrawChildren);
    }
    state.counters["area"] = button->width() * button->height();
}

/// Medians of the repetitions, and how they relate.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Iteration) {
                m_times[run.run_name.function_name].push_back(run.GetAdjustedCPUTime());
                for (const auto& [name, counter] : run.counters)
                    m_counters[name] = counter.value;
            }
    }

    void print() {
        std::printf("1,000 buttons of %dx%d in mixed states, ms: median of %zu\n", cellSize.width(),
                    cellSize.height(), m_times.begin()->second.size());
        for (const char* const scale : {"1x", "2x"}) {
            const double own = median("kit", scale);
            std::printf("  %s  kit %.2f\n", scale, own);
            printRatio("style sheet", scale, own, ">= 6", false);
            printRatio("plain", scale, own, ">= 4", false);
            printRatio("copy", scale, own, "<= 5", true);
        }
        const double own = median("kit's drawing", "1x");
        std::printf("  1x  the kit's drawing alone, no widget paints %.2f\n", own);
        printRatio("style sheet's", "1x", own, ">= 6", false);
        printRatio("plain's", "1x", own, ">= 4", false);
        printRatio("copy", "1x", own, "<= 5", true);
        std::printf("state look-up: %.2f ns, %.0f allocations\n", median("look-up", "") * 1e6,
                    m_counters["allocations"]);
        std::printf("one state change: %.2f us, %.0f square points repainted\n", median("change", "") * 1e3,
                    m_counters["area"]);
    }

private:
    double median(const std::string& name, const std::string& scale) {
        std::vector<double>& times = m_times[scale.empty() ? name : name + " " + scale];
        std::sort(times.begin(), times.end());
        return times.empty() ? 0 : times[times.size() / 2];
    }

    void printRatio(const char* name, const char* scale, double own, const char* aim, bool isSlower) {
        const double other = median(name, scale);
        std::printf("      %-13s %8.2f   %5.1f times as %s (aim %s)\n", name, other,
                    isSlower ? own / other : other / own, isSlower ? "slow" : "fast", aim);
    }

    std::map<std::string, std::vector<double>> m_times;
    std::map<std::string, double> m_counters;
};

} // namespace

/// The argument is the directory of the application's bundle.
int main(int argc, char** argv) {
    if (argc != 2)
        return EXIT_FAILURE;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    platform::Bundle::setMainDirectory(QString::fromLocal8Bit(argv[1]));
    QApplication::setFont(platform::systemFont(10));
    const QTemporaryDir folder;
    const QString sheet = styleSheet(folder.path());

    Page kit(styledButton);
    Page plain(plainButton);
    Page sheeted([&](int index) {
        QWidget* const button = plainButton(index);
        button->setStyleSheet(sheet);
        return button;
    });
    const auto add = [](const std::string& name, auto measure) {
        benchmark::RegisterBenchmark(name.c_str(), measure)
            ->Unit(benchmark::kMillisecond)
            ->Repetitions(11)
            ->MinTime(0.1);
    };
    for (const int scale : {1, 2}) {
        const std::string suffix = scale == 1 ? " 1x" : " 2x";
        add("kit" + suffix, [&, scale](benchmark::State& state) { paintChildren(state, kit, scale); });
        add("style sheet" + suffix,
            [&, scale](benchmark::State& state) { paintChildren(state, sheeted, scale); });
        add("plain" + suffix, [&, scale](benchmark::State& state) { paintChildren(state, plain, scale); });
        add("copy" + suffix, [scale](benchmark::State& state) { copyPixels(state, scale); });
    }
    add("kit's drawing 1x", [&](benchmark::State& state) { drawCells(state, kit); });
    add("style sheet's 1x", [&](benchmark::State& state) { drawByStyle(state, sheeted); });
    add("plain's 1x", [&](benchmark::State& state) { drawByStyle(state, plain); });
    add("look-up", lookUp);
    add("change", [&](benchmark::State& state) { changeOneState(state, kit); });

    char* arguments[] = {argv[0], const_cast<char*>("--benchmark_enable_random_interleaving=true")};
    int count = 2;
    benchmark::Initialize(&count, arguments);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.print();
}
