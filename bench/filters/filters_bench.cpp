// Each filter row and each adjustment slider on a 2160 x 3840 picture, and the feather mask; the end of
// the run names the slowest row or slider, the median, and the feather.
#include "feathermask.h"
#include "filtersource.h"
#include "photofilters.h"

#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QRandomGenerator>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

const QSize pictureSize(2160, 3840);

/** A photograph-like picture: a sky gradient, soft shapes and grain; opaque, or with a transparent hole. */
QImage picture(bool withAlpha)
{
    QImage image(pictureSize, QImage::Format_ARGB32_Premultiplied);
    QPainter p(&image);
    QLinearGradient sky(0, 0, 0, pictureSize.height());
    sky.setColorAt(0, QColor(40, 90, 170));
    sky.setColorAt(0.6, QColor(240, 170, 120));
    sky.setColorAt(1, QColor(60, 50, 40));
    p.fillRect(image.rect(), sky);
    p.setRenderHint(QPainter::Antialiasing);
    QRandomGenerator random(7);
    for (int i = 0; i < 60; ++i) {
        p.setBrush(QColor::fromHsv(random.bounded(360), 80 + random.bounded(150), 60 + random.bounded(190), 160));
        p.setPen(Qt::NoPen);
        p.drawEllipse(QPointF(random.bounded(pictureSize.width()), random.bounded(pictureSize.height())),
            100 + random.bounded(400), 100 + random.bounded(400));
    }
    if (withAlpha) {
        p.setCompositionMode(QPainter::CompositionMode_Clear);
        p.drawEllipse(QPointF(1080, 1920), 500, 700);
    }
    return image;
}

FilterSource &source()
{
    static FilterSource shared = [] {
        FilterSource s;
        s.setupCoreImage(picture(false));
        return s;
    }();
    return shared;
}

void filterRow(benchmark::State &state)
{
    const int row = int(state.range(0));
    for (auto _ : state) {
        QImage result = source().applyFilter(row);
        benchmark::DoNotOptimize(result.constBits());
    }
    state.SetLabel(PhotoFilters::filterItemsArray().at(row).name.toStdString());
}
BENCHMARK(filterRow)->DenseRange(1, 14)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

void adjustment(benchmark::State &state)
{
    const char *const names[] = { "opacity", "brightness", "contrast", "saturation" };
    const int slider = int(state.range(0));
    for (auto _ : state) {
        QImage result;
        switch (slider) {
        case 0:
            result = source().opacity(60);
            break;
        case 1:
            result = source().brightness(40);
            break;
        case 2:
            result = source().contrast(40);
            break;
        default:
            result = source().saturation(40);
            break;
        }
        benchmark::DoNotOptimize(result.constBits());
    }
    state.SetLabel(names[slider]);
}
BENCHMARK(adjustment)->DenseRange(0, 3)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

/** Radius 40; the mask for a view of the picture's own size (arg 1) or of a phone's canvas (0). */
void feather(benchmark::State &state)
{
    static const QImage opaque = picture(false);
    static const QImage holed = picture(true);
    const bool fullSize = state.range(0) == 1;
    const bool withAlpha = state.range(1) == 1;
    const QSize view = fullSize ? pictureSize : QSize(390, 693);
    for (auto _ : state) {
        QImage mask = FeatherMask::compute(withAlpha ? holed : opaque, 40, view);
        benchmark::DoNotOptimize(mask.constBits());
    }
    state.SetLabel(QStringLiteral("view %1x%2%3")
                       .arg(view.width())
                       .arg(view.height())
                       .arg(withAlpha ? QStringLiteral(", picture with alpha") : QString())
                       .toStdString());
}
BENCHMARK(feather)
    ->Args({ 1, 0 })
    ->Args({ 1, 1 })
    ->Args({ 0, 0 })
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->UseRealTime();

/** The console report, and at the end the slowest and median of the rows and sliders. */
class SummaryReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run &run : runs) {
            if (run.run_type != Run::RT_Iteration || run.iterations == 0)
                continue;
            // Milliseconds: wall time, and CPU time of all threads (on an idle machine the wall time of two
            // cores is about half of it).
            const Times times { run.GetAdjustedRealTime(), run.GetAdjustedCPUTime() };
            const std::string name
                = run.benchmark_name().substr(0, run.benchmark_name().find('/')) + " " + run.report_label;
            if (run.benchmark_name().rfind("feather", 0) == 0)
                m_feather[name] = times;
            else
                m_times[name] = times;
        }
    }

    void Finalize() override
    {
        ConsoleReporter::Finalize();
        if (m_times.empty())
            return;
        std::vector<std::pair<Times, std::string>> sorted;
        for (const auto &[name, times] : m_times)
            sorted.emplace_back(times, name);
        std::sort(
            sorted.begin(), sorted.end(), [](const auto &a, const auto &b) { return a.first.wall < b.first.wall; });
        const auto middle = [&](double Times::*field) {
            const size_t n = sorted.size();
            return n % 2 ? sorted[n / 2].first.*field
                         : (sorted[n / 2 - 1].first.*field + sorted[n / 2].first.*field) / 2;
        };
        std::printf("\n%zu rows and sliders on %dx%d, wall (CPU of all threads):\n", sorted.size(), pictureSize.width(),
            pictureSize.height());
        std::printf("  slowest %.1f ms (%.1f ms) %s\n", sorted.back().first.wall, sorted.back().first.cpu,
            sorted.back().second.c_str());
        std::printf("  median  %.1f ms (%.1f ms)\n", middle(&Times::wall), middle(&Times::cpu));
        for (const auto &[name, times] : m_feather)
            std::printf("  %s: %.1f ms (%.1f ms)\n", name.c_str(), times.wall, times.cpu);
    }

private:
    struct Times
    {
        double wall;
        double cpu;
    };
    std::map<std::string, Times> m_times;
    std::map<std::string, Times> m_feather;
};

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    SummaryReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
