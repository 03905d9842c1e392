// Leaving the editor: "YES" stores the user's design when it changed, with its previews, and nothing
// when it did not.
#include "alertmodel.h"
#include "designstore.h"
#include "editimageportraitmode.h"
#include "gobackdelegate.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "resizableimageview.h"
#include "storeddesign.h"
#include "testhome.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

struct CountingShell : GoBackDelegate
{
    CountingShell() { setShared(this); }
    void goBack() override { ++calls; }
    int calls = 0;
};

// An editor on the navigation stack over a home screen, storing into the home's store.
struct OpenEditor
{
    explicit OpenEditor(const char *document)
    {
        QDir().mkpath(home.filePath(QStringLiteral("resource")));
        for (const auto &[name, color] : { std::pair("a.png", Qt::red), std::pair("b.png", Qt::blue) }) {
            QImage picture(40, 40, QImage::Format_ARGB32);
            picture.fill(color);
            picture.save(home.filePath(QStringLiteral("resource/") + QLatin1String(name)));
        }
        navigation.setRoot(new ViewController());
        editor = new EditImagePortraitMode();
        editor->setDesignStore(&store);
        editor->leaveNoticeMs = 0;
        editor->setCanvasArea(QRectF(0, 0, 360, 640));
        editor->contentJson = Mapper::map<Json>(QString::fromUtf8(document));
        navigation.push(editor, false);
    }

    QList<ResizableImageView *> stickers() const
    {
        QList<ResizableImageView *> found;
        for (View *view : editor->viewMain->subviews()) {
            if (auto *sticker = qobject_cast<ResizableImageView *>(view))
                found.append(sticker);
        }
        return found;
    }

    // Back, then "YES", then the path to its end.
    bool leave()
    {
        QSignalSpy left(editor, &EditorSession::didLeave);
        editor->requestLeave();
        if (!navigation.alert() || !navigation.alert()->trigger(QStringLiteral("YES")))
            return false;
        return !left.isEmpty() || left.wait(10000);
    }

    TestHome home;
    DesignStore store;
    NavigationController navigation;
    EditImagePortraitMode *editor = nullptr;
};

const char *const twoStickers = R"({"width": 720, "height": 1280, "sample_image": "card.jpg",
    "sticker_json": [{"sticker_image": "a.png", "xPos": 100, "yPos": 100, "width": 80, "height": 80},
                     {"sticker_image": "b.png", "xPos": 300, "yPos": 100, "width": 80, "height": 80}]})";

} // namespace

TEST(Leaving, WithEditsStoresTheSavedDesignWithPreviewsThenCallsTheShellAndPops)
{
    CountingShell shell;
    OpenEditor e(twoStickers);
    ResizableImageView *back = e.stickers().first();
    back->tapGesture();
    back->panGesture(LayerView::Changed, QPointF(10, 0));
    back->panGesture(LayerView::Ended, QPointF());
    // The panel swaps the two stickers in the canvas only; the save takes the stacking order.
    e.editor->toggleLayers();
    e.editor->positionChanged(0, 1);
    const qint64 frontIndex = *e.stickers().last()->stickerJson->index;
    ASSERT_EQ(frontIndex, 1);

    ASSERT_TRUE(e.leave());
    EXPECT_EQ(shell.calls, 1);
    EXPECT_EQ(e.navigation.depth(), 1);
    EXPECT_EQ(e.navigation.alert(), nullptr); // the notice has gone

    const QList<SavePhoto> rows = e.store.allDesigns();
    ASSERT_EQ(rows.size(), 1);
    EXPECT_FALSE(rows.first().jsonString.contains(QStringLiteral("changed_")));
    const auto stored = readStoredDesign(rows.first().jsonString);
    EXPECT_TRUE(stored->is_editsaved);
    ASSERT_EQ(stored->sticker_json->size(), 2);
    EXPECT_EQ(stored->sticker_json->last()->index, frontIndex);
    // The preview is the canvas at the design's own size, the thumbnail a smaller drawing of it.
    const QDir documents(e.home.filePath(QStringLiteral("Documents")));
    const QImage sample(documents.filePath(stored->sample_image.value_or(QString())));
    const QImage thumbnail(documents.filePath(stored->thumbnail_img.value_or(QString())));
    EXPECT_EQ(sample.size(), QSize(720, 1280));
    ASSERT_FALSE(thumbnail.isNull());
    EXPECT_LT(thumbnail.width(), sample.width());
    EXPECT_NEAR(double(thumbnail.width()) / thumbnail.height(), 720.0 / 1280.0, 0.01);
    EXPECT_EQ(sample.pixelColor(140, 140), QColor(Qt::red)); // the moved sticker, drawn at twice the canvas
}

TEST(Leaving, WithoutEditsPopsAtOnceAndStoresNothing)
{
    CountingShell shell;
    OpenEditor e(twoStickers);
    e.editor->leaveNoticeMs = 60000; // a notice would hold the path up
    ASSERT_TRUE(e.leave());
    EXPECT_EQ(e.navigation.depth(), 1);
    EXPECT_EQ(shell.calls, 0);
    EXPECT_TRUE(e.store.allDesigns().isEmpty());
}

TEST(Leaving, NoShowsNoNoticeAndTheEditorStays)
{
    OpenEditor e(twoStickers);
    e.editor->requestLeave();
    ASSERT_NE(e.navigation.alert(), nullptr);
    EXPECT_EQ(e.navigation.alert()->message(), QStringLiteral("Are you sure?"));
    e.navigation.alert()->trigger(QStringLiteral("NO"));
    EXPECT_EQ(e.navigation.alert(), nullptr);
    EXPECT_EQ(e.navigation.depth(), 2);
}
