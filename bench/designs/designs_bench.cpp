// The saved designs store: saving one large design, and listing a full store.
#include "applog.h"
#include "designsaver.h"
#include "mapper.h"
#include "sampledocument.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>

namespace {

// A fresh store in its own home; the log goes nowhere.
struct BenchStore
{
    BenchStore()
        : trace(std::fopen("/dev/null", "w"))
        , store(dir.filePath(QStringLiteral("QuilletStore.sqlite")))
    {
        AppLog::setOutput(trace);
    }
    ~BenchStore()
    {
        AppLog::setOutput(stdout);
        std::fclose(trace);
    }

    QTemporaryDir dir;
    FILE *trace;
    DesignStore store;
};

// One saveDesign of a stored 200-layer design over its own row: the committed, synced write.
void saveDesign200Layers(benchmark::State &state)
{
    BenchStore bench;
    const QString text = *Mapper::toJSONString(*makeSampleDocument(200), true);
    const auto id = bench.store.saveDesign(text, std::nullopt, false);
    for (auto _ : state)
        bench.store.saveDesign(text, id, false);
    state.SetBytesProcessed(state.iterations() * text.toUtf8().size());
}
BENCHMARK(saveDesign200Layers)->Unit(benchmark::kMillisecond);

// The automatic save after an edit: serialising the 200-layer document and saving it.
void autoSave200Layers(benchmark::State &state)
{
    BenchStore bench;
    auto json = makeSampleDocument(200);
    DesignSaver saver(bench.store);
    saver.saveEdit(*json);
    for (auto _ : state)
        saver.saveEdit(*json);
}
BENCHMARK(autoSave200Layers)->Unit(benchmark::kMillisecond);

// Serialisation alone, to tell it from the store's share of a save.
void serialise200Layers(benchmark::State &state)
{
    auto json = makeSampleDocument(200);
    for (auto _ : state)
        benchmark::DoNotOptimize(Mapper::toJSONString(*json, true));
}
BENCHMARK(serialise200Layers)->Unit(benchmark::kMillisecond);

// A store of 1,000 designs of 20 layers each.
BenchStore &fullStore()
{
    static BenchStore bench;
    static const bool filled = [] {
        const QString text = *Mapper::toJSONString(*makeSampleDocument(20), true);
        for (int i = 0; i < 1000; ++i)
            bench.store.saveDesign(text, std::nullopt, i % 3 == 0);
        return true;
    }();
    (void)filled;
    return bench;
}

void allDesigns1000Rows(benchmark::State &state)
{
    DesignStore &store = fullStore().store;
    for (auto _ : state)
        benchmark::DoNotOptimize(store.allDesigns());
}
BENCHMARK(allDesigns1000Rows)->Unit(benchmark::kMillisecond);

// What a list screen does: every row fetched and its document read.
void savedDesigns1000Rows(benchmark::State &state)
{
    DesignStore &store = fullStore().store;
    for (auto _ : state)
        benchmark::DoNotOptimize(store.savedDesigns());
}
BENCHMARK(savedDesigns1000Rows)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
