#include "layerrecorder.h"
#include "picturefile.h"
#include "resizableview.h"
#include "testhome.h"

#include "apppaths.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

struct Text
{
    TestHome home;
    LayerRecorder editor;
    View canvas { QRectF(0, 0, 400, 600) };
    ResizableView *layer;

    explicit Text(const QRectF &frame = QRectF(0, 44, 100, 100))
        : layer(new ResizableView(frame))
    {
        AppPaths::ensureCreated();
        canvas.addSubview(layer);
        layer->delegate = &editor;
    }

    // The editor's steps for a new text.
    void makeNew(const QString &text, qreal maxWidth = 400)
    {
        layer->textView->foregroundColor = QColor(255, 0, 0);
        layer->textView->applyForegroundColor();
        layer->textView->setText(text);
        layer->textView->fontName = QStringLiteral("LobsterTwo-BoldItalic");
        layer->textView->applyFontName();
        layer->textView->fontSize = 28;
        layer->textView->applyFontSize();
        layer->maxWidth = maxWidth;
        layer->resizeToFitText();
        layer->setTag(1);
        layer->showControls();
        editor.calls.clear();
    }

    // The editor's steps for a loaded record: the frame from the record, then the load.
    static std::unique_ptr<Text> loaded(const std::shared_ptr<TextJson> &json)
    {
        auto text = std::make_unique<Text>(QRectF(json->xPos.value_or(0) - 22, json->yPos.value_or(0) - 22, 100, 100));
        text->layer->loadFromJson(json, 400, 1, true);
        return text;
    }
};

std::shared_ptr<TextJson> record(const QString &text)
{
    auto json = std::make_shared<TextJson>();
    json->xPos = 50;
    json->yPos = 80;
    json->size = 30;
    json->text = text;
    json->color = QStringLiteral("FFFFFF");
    return json;
}

} // namespace

TEST(TextLayer, IsBuiltWithTheLiteralThatNamesNoFont)
{
    Text t;
    EXPECT_EQ(t.layer->textView->fontName, "Helveticas");
    EXPECT_FALSE(t.layer->textView->textAttributes.font.has_value());
    EXPECT_EQ(t.layer->textView->fontSize, 100); // the content height at construction
    EXPECT_EQ(t.layer->textView->paragraphStyle.alignment, Qt::AlignHCenter);
}

TEST(TextLayer, SizeFollowsTheTextAndWrapsAtTheMaximumWidth)
{
    Text t;
    t.makeNew(QStringLiteral("Hi"));
    const QSizeF oneLine = t.layer->mainView->bounds().size();
    EXPECT_EQ(t.layer->bounds().size(), oneLine + QSizeF(28, 28));
    EXPECT_EQ(t.layer->mainView->frame().topLeft(), QPointF(14, 14));
    EXPECT_LT(oneLine.width(), 100);

    t.layer->maxWidth = 150;
    t.layer->textView->setText(QStringLiteral("A rather long line of words that has to wrap"));
    const QSizeF wrapped = t.layer->mainView->bounds().size();
    EXPECT_LE(wrapped.width(), 150);
    EXPECT_GT(wrapped.height(), 2.5 * oneLine.height() - 32);
}

TEST(TextLayer, RecordHoldsTheTextsOwnCornerInsideTheMargin)
{
    Text t;
    t.makeNew(QStringLiteral("Hello"));
    const TextJson &json = *t.layer->textJson;
    const QRectF r = t.layer->unrotatedFrame();
    EXPECT_DOUBLE_EQ(*json.xPos, r.x() + 22);
    EXPECT_DOUBLE_EQ(*json.yPos, r.y() + 22);
    EXPECT_EQ(json.size, 28);
    EXPECT_EQ(json.text, "Hello");
    EXPECT_EQ(json.color, "#ff0000");
    EXPECT_EQ(json.fontName, "LobsterTwo-BoldItalic");
    EXPECT_EQ(json.opacity, 100);
    EXPECT_EQ(json.alignment, 2);
    EXPECT_EQ(json.index, 1);
    EXPECT_EQ(json.status, 1);
}

TEST(TextLayer, LoadingPutsTheTextBackWhereTheRecordSays)
{
    auto json = record(QStringLiteral("Sale"));
    json->angle = 0.5;
    const auto t = Text::loaded(json);
    EXPECT_DOUBLE_EQ(*json->xPos, 50);
    EXPECT_DOUBLE_EQ(*json->yPos, 80);
    EXPECT_EQ(t->layer->textJson, json);
    EXPECT_FALSE(t->layer->isSelected());
    EXPECT_DOUBLE_EQ(t->layer->zAngle, 0.5);
    EXPECT_EQ(t->layer->textView->fontSize, 30);
    EXPECT_FALSE(t->layer->textView->editable);
    EXPECT_EQ(t->editor.calls, (QStringList { "textDidDeselect", "textDidAttach" }));
}

TEST(TextLayer, PinchChangesTheFontSizeButNeverToOneOrBelow)
{
    Text t;
    t.makeNew(QStringLiteral("Hi"));
    t.layer->pinchGesture(LayerView::Began, 1.0);
    t.layer->pinchGesture(LayerView::Changed, 0.5); // -50 would pass the floor
    EXPECT_EQ(t.layer->textView->fontSize, 28);
    t.layer->pinchGesture(LayerView::Changed, 0.45); // a step of 0.9: -10
    EXPECT_NEAR(t.layer->textView->fontSize, 18, 1e-9);
    for (double s = 0.45; s > 0.05; s -= 0.05)
        t.layer->pinchGesture(LayerView::Changed, s);
    EXPECT_GT(t.layer->textView->fontSize, 1.0);
    t.layer->pinchGesture(LayerView::Ended, 0.05);
    EXPECT_EQ(t.layer->textJson->size, t.layer->textView->fontSize);
    EXPECT_EQ(t.layer->bounds().size(), t.layer->mainView->bounds().size() + QSizeF(28, 28));
}

TEST(TextLayer, ResizeHandleScalesTheFontNotTheView)
{
    Text t;
    t.makeNew(QStringLiteral("Hi"));
    const qreal width = t.layer->bounds().width();
    t.layer->buttonPanGesture(LayerView::Began, QPointF(width, 40));
    t.layer->buttonPanGesture(LayerView::Changed, QPointF(width + width / 5, 90));
    EXPECT_NEAR(t.layer->textView->fontSize, 28 + 25, 1e-9);
    EXPECT_TRUE(t.layer->transform().isIdentity());
    t.layer->buttonPanGesture(LayerView::Changed, QPointF(-5000, 90)); // refused: below the floor
    EXPECT_NEAR(t.layer->textView->fontSize, 53, 1e-9);
    EXPECT_EQ(t.layer->prevPoint, QPointF(-5000, 90));
    t.layer->buttonPanGesture(LayerView::Ended, QPointF(-5000, 90));
    EXPECT_NEAR(*t.layer->textJson->size, 53, 1e-9);
    EXPECT_EQ(t.layer->textJson->status, 2);
}

TEST(TextStyle, CaseStylesReplaceTheTextForGood)
{
    const auto t = Text::loaded([] {
        auto json = record(QStringLiteral("Ab"));
        json->text_style = 1;
        return json;
    }());
    EXPECT_EQ(t->layer->textView->text(), "AB");
    EXPECT_EQ(t->layer->textJson->text, "AB");
    t->layer->textView->applyLowerCase();
    t->layer->textView->applyCapitalized();
    EXPECT_EQ(t->layer->textJson->text, "AB"); // applied, not yet recorded
    t->layer->recordTextChange();
    EXPECT_EQ(t->layer->textJson->text, "Ab");
    EXPECT_EQ(t->layer->textJson->text_style, 3);
    EXPECT_EQ(ResizableTextView::styled(QStringLiteral("hello wORLD 2nd"), 3), "Hello World 2nd");
    EXPECT_EQ(ResizableTextView::styled(QStringLiteral("AB"), 0), "AB"); // plain cannot undo
}

TEST(TextStyle, UnknownAlignmentLeavesCentredAndWritesTwo)
{
    for (const qint64 alignment : { 0, 4 }) {
        auto json = record(QStringLiteral("Hi"));
        json->alignment = alignment;
        const auto t = Text::loaded(json);
        EXPECT_EQ(t->layer->textView->paragraphStyle.alignment, Qt::AlignHCenter);
        EXPECT_EQ(json->alignment, 2);
    }
    auto json = record(QStringLiteral("Hi"));
    json->alignment = 3;
    const auto t = Text::loaded(json);
    EXPECT_EQ(t->layer->textView->paragraphStyle.alignment, Qt::AlignRight);
    EXPECT_EQ(json->alignment, 3);
}

TEST(TextShadow, NeedsColourRadiusAndDistance)
{
    auto json = record(QStringLiteral("Hi"));
    json->shadowColor = QStringLiteral("#000000");
    json->shadowRadius = 0;
    json->shadowDistance = 5;
    const auto t = Text::loaded(json);
    EXPECT_FALSE(t->layer->textView->textAttributes.shadow.has_value());
    EXPECT_FALSE(json->shadowRadius.has_value());
    EXPECT_FALSE(json->shadowDistance.has_value());

    auto shadowed = record(QStringLiteral("Hi"));
    shadowed->shadowColor = QStringLiteral("336699");
    shadowed->shadowRadius = 4;
    shadowed->shadowDistance = 3;
    const auto s = Text::loaded(shadowed);
    const auto &shadow = s->layer->textView->textAttributes.shadow;
    ASSERT_TRUE(shadow.has_value());
    EXPECT_EQ(shadow->offset, QSizeF(3, 3));
    EXPECT_EQ(shadow->blurRadius, 4);
    EXPECT_EQ(shadow->color, QColor(0x33, 0x66, 0x99));
    EXPECT_EQ(shadowed->shadowColor, "#336699");
    EXPECT_EQ(shadowed->shadowDistance, 3);
}

TEST(TextShadow, SliderValuesReachTheRecordOnlyWhenRecorded)
{
    Text t;
    t.makeNew(QStringLiteral("Hi"));
    t.layer->textView->textShadowBlur = 6;
    t.layer->textView->applyShadowBlur();
    t.layer->textView->applyLetterSpace(4);
    t.layer->textView->textAlpha = 0.25;
    t.layer->textView->applyAlpha();
    EXPECT_FALSE(t.layer->textJson->shadowRadius.has_value());
    EXPECT_EQ(t.layer->textJson->land_space, 0);
    EXPECT_TRUE(t.editor.calls.isEmpty());
    t.layer->recordTextChange();
    EXPECT_EQ(t.layer->textJson->shadowRadius, 6);
    EXPECT_EQ(t.layer->textJson->land_space, 4);
    EXPECT_EQ(t.layer->textJson->opacity, 25);
    EXPECT_EQ(t.editor.calls, (QStringList { "textDidUpdate" }));
}

TEST(TextOpacity, TheFadeIsTheRecordsOpacityBothWays)
{
    auto json = record(QStringLiteral("Hi"));
    json->opacity = 40;
    const auto t = Text::loaded(json);
    EXPECT_NEAR(t->layer->textView->alpha(), 0.4, 1e-9);
    EXPECT_NEAR(t->layer->textView->textAlpha, 0.4, 1e-9);
    t->layer->textView->textAlpha = 0.7;
    t->layer->textView->applyAlpha();
    t->layer->recordTextChange();
    EXPECT_NEAR(*json->opacity, 70, 1e-9);
}

TEST(TextColour, APlainColourClearsTheTexture)
{
    Text t(QRectF(28, 58, 100, 100));
    QImage tile(8, 8, QImage::Format_RGB32);
    tile.fill(Qt::green);
    auto json = record(QStringLiteral("Hi"));
    json->texture_image = QDir(AppPaths::documents()).filePath(PictureFile::write(tile));
    t.layer->loadFromJson(json, 400, 1, true);
    EXPECT_TRUE(t.layer->textView->patternColor.has_value());
    EXPECT_EQ(t.layer->textView->textAttributes.foreground->style(), Qt::TexturePattern);
    EXPECT_TRUE(json->texture_image.has_value());

    t.layer->textView->foregroundColor = QColor(Qt::blue);
    t.layer->textView->applyForegroundColor();
    t.layer->recordColourChange();
    EXPECT_FALSE(t.layer->textView->patternColor.has_value());
    EXPECT_FALSE(json->texture_image.has_value());
    EXPECT_EQ(json->color, "#0000ff");
}

TEST(TextColour, ColoursPerCharacterAreLostAtTheNextRebuild)
{
    Text t;
    t.makeNew(QStringLiteral("abc"));
    t.layer->textView->applyColors({ Qt::red, Qt::green, Qt::blue, Qt::black });
    EXPECT_EQ(t.layer->textView->attributedText().characterForegrounds.size(), 3);
    t.layer->textView->applyUnderline();
    EXPECT_TRUE(t.layer->textView->attributedText().characterForegrounds.isEmpty());
    Text empty;
    empty.layer->textView->setText(QString());
    empty.layer->textView->applyColors({ Qt::red });
    EXPECT_TRUE(empty.layer->textView->attributedText().characterForegrounds.isEmpty());
}

TEST(TextClose, TellsTheEditorAndLeaves)
{
    Text t;
    t.makeNew(QStringLiteral("Hi"));
    t.layer->buttonTapGesture();
    EXPECT_TRUE(t.canvas.subviews().isEmpty());
    EXPECT_EQ(t.editor.calls, QStringList { "textWillClose" });
}
