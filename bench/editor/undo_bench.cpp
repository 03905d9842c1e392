// One recorded step and one undo on a design of 200 layers, with the automatic save into a real store.
#include "applog.h"
#include "designstore.h"
#include "editimageportraitmode.h"
#include "mapper.h"
#include "picturefile.h"
#include "resizableimageview.h"
#include "resizableview.h"
#include "sampledocument.h"

#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

constexpr int layerCount = 200;

// A session on the sample design in its own application home.
struct Bench
{
    Bench()
    {
        qputenv("QUILLET_HOME", home.path().toUtf8());
        store = std::make_unique<DesignStore>();
        session.setDesignStore(store.get());
        session.setCanvasArea(QRectF(0, 0, 360, 640));
        // Stickers with a real picture, as an edited design has them.
        QImage picture(256, 256, QImage::Format_ARGB32);
        picture.fill(QColor(224, 88, 99, 200));
        const QString pictureFile = home.filePath(QStringLiteral("sticker.png"));
        picture.save(pictureFile);
        const auto document = makeSampleDocument(layerCount);
        for (const auto &sticker : *document->sticker_json)
            sticker->sticker_image = pictureFile;
        session.loadReEdit(document);
    }

    template<class Layer> Layer *topmost() const
    {
        const QList<View *> &views = session.viewMain->subviews();
        for (auto it = views.rbegin(); it != views.rend(); ++it) {
            if (auto *layer = qobject_cast<Layer *>(*it))
                return layer;
        }
        return nullptr;
    }

    QTemporaryDir home;
    std::unique_ptr<DesignStore> store;
    EditImagePortraitMode session;
};

template<class Layer> void movedBy(Layer *layer, qreal dx)
{
    layer->tapGesture();
    layer->panGesture(LayerView::Changed, QPointF(dx, 0));
    layer->panGesture(LayerView::Ended, QPointF());
}

// A finished move of a text: write-back, delta, snapshot of the whole document, step, store write.
void recordStep(benchmark::State &state)
{
    Bench bench;
    ResizableView *text = bench.topmost<ResizableView>();
    qreal dx = 1;
    for (auto _ : state) {
        movedBy(text, dx);
        dx = -dx;
    }
    state.counters["undoEntries"] = static_cast<double>(bench.session.undoArray().size());
}
BENCHMARK(recordStep)->Unit(benchmark::kMillisecond);

// The snapshot of the whole document that every step keeps: what the history itself costs.
void snapshot(benchmark::State &state)
{
    Bench bench;
    for (auto _ : state)
        benchmark::DoNotOptimize(bench.session.documentDictionary());
}
BENCHMARK(snapshot)->Unit(benchmark::kMillisecond);

// Undo of a text move: two snapshots mapped back, one text layer rebuilt, store write.
void undoTextMove(benchmark::State &state)
{
    Bench bench;
    for (auto _ : state) {
        state.PauseTiming();
        movedBy(bench.topmost<ResizableView>(), 5);
        state.ResumeTiming();
        bench.session.undo();
    }
}
BENCHMARK(undoTextMove)->Unit(benchmark::kMillisecond);

// Undo of a sticker move: the sticker layer is rebuilt, its picture written as a file again.
void undoStickerMove(benchmark::State &state)
{
    Bench bench;
    for (auto _ : state) {
        state.PauseTiming();
        movedBy(bench.topmost<ResizableImageView>(), 5);
        state.ResumeTiming();
        bench.session.undo();
    }
}
BENCHMARK(undoStickerMove)->Unit(benchmark::kMillisecond);

// The parts of an undo: mapping one snapshot back to a document, and the picture file that a rebuilt
// sticker writes when it is numbered.
void mapSnapshot(benchmark::State &state)
{
    Bench bench;
    const nlohmann::ordered_json snapshot = bench.session.documentDictionary();
    for (auto _ : state)
        benchmark::DoNotOptimize(Mapper::map<Json>(snapshot));
}
BENCHMARK(mapSnapshot)->Unit(benchmark::kMillisecond);

void stickerPictureFile(benchmark::State &state)
{
    Bench bench;
    const QImage picture = bench.topmost<ResizableImageView>()->contentImageView->image();
    for (auto _ : state)
        benchmark::DoNotOptimize(PictureFile::write(picture));
}
BENCHMARK(stickerPictureFile)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    // Results on stdout; the application's log beside them.
    AppLog::setOutput(stderr);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
