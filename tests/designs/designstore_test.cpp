#include "designstore.h"
#include "sqlitedatabase.h"
#include "testhome.h"
#include "tracecapture.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

const QString document = QStringLiteral(R"({"sample_image": "1.png", "width": 100})");

// Sets a row's time text directly, to test the order independently of the clock.
void setUpdatedAt(const ObjectId &id, const QString &text)
{
    SqliteDatabase db;
    ASSERT_TRUE(db.open(DesignStore::defaultPath()));
    SqliteStatement update = db.prepare(QStringLiteral("UPDATE SavePhoto SET updated_at = ? WHERE rowid = ?"));
    update.bind(1, text).bind(2, id.rowid);
    ASSERT_TRUE(update.exec());
}

} // namespace

TEST(DesignStore, SavingTwiceKeepsOneRowAndMovesItsTime)
{
    TestHome home;
    TraceCapture trace;
    DesignStore store;
    const auto id = store.saveDesign(document, std::nullopt, false);
    ASSERT_TRUE(id);
    const QString firstTime = store.allDesigns().first().updated_at;
    EXPECT_TRUE(firstTime.contains(QRegularExpression(QStringLiteral("^[0-9]{10}\\.[0-9]+$"))))
        << qPrintable(firstTime);

    EXPECT_EQ(store.saveDesign(QStringLiteral("{}"), id, true), id);
    const QList<SavePhoto> rows = store.allDesigns();
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows.first().objectID, *id);
    EXPECT_EQ(rows.first().jsonString, QStringLiteral("{}"));
    EXPECT_TRUE(rows.first().is_video);
    EXPECT_GE(rows.first().updated_at, firstTime);
    EXPECT_TRUE(trace.text().startsWith(QStringLiteral("saved.\ncontent object id:- ") + document
        + QStringLiteral("\nsaved.\ncontent object id:- {}\n")));
}

TEST(DesignStore, SavingToADeletedRowInsertsANewOne)
{
    TestHome home;
    TraceCapture trace;
    DesignStore store;
    const auto first = store.saveDesign(document, std::nullopt, false);
    ASSERT_TRUE(store.deleteDesign(first));
    const auto second = store.saveDesign(document, first, false);
    ASSERT_TRUE(second);
    EXPECT_NE(*second, *first); // row ids are not reused
    EXPECT_EQ(store.allDesigns().size(), 1);
    EXPECT_EQ(store.lastDesignObjectID(), second);
    EXPECT_FALSE(trace.text().contains(QStringLiteral("Could not")));
}

TEST(DesignStore, TheNewestRowIsLastAndIdsSurviveARestart)
{
    TestHome home;
    TraceCapture trace;
    QString idText;
    {
        DesignStore store;
        EXPECT_FALSE(store.lastDesignObjectID());
        store.saveDesign(document, std::nullopt, false);
        const auto second = store.saveDesign(document, std::nullopt, false);
        store.saveDesign(document, store.allDesigns().last().objectID, false); // an update is no new row
        EXPECT_EQ(store.lastDesignObjectID(), second);
        idText = second->toString();
    }
    EXPECT_EQ(idText, QStringLiteral("x-quillet://QuilletStore/SavePhoto/p2"));
    DesignStore reopened;
    EXPECT_TRUE(reopened.deleteDesign(ObjectId::fromString(idText)));
    EXPECT_EQ(reopened.allDesigns().size(), 1);
}

TEST(DesignStore, DesignsAreOrderedByTheTextOfTheirTime)
{
    TestHome home;
    TraceCapture trace;
    DesignStore store;
    const auto a = *store.saveDesign(QStringLiteral("{\"a\": 1}"), std::nullopt, false);
    const auto b = *store.saveDesign(QStringLiteral("{\"b\": 1}"), std::nullopt, false);
    const auto c = *store.saveDesign(QStringLiteral("{\"c\": 1}"), std::nullopt, false);
    setUpdatedAt(a, QStringLiteral("1731672000.5"));
    setUpdatedAt(b, QStringLiteral("999999999.9")); // earlier in time, later as text
    setUpdatedAt(c, QStringLiteral("1731672000.25"));
    QList<ObjectId> order;
    for (const SavePhoto &row : store.allDesigns())
        order.append(row.objectID);
    EXPECT_EQ(order, (QList<ObjectId> { b, a, c }));
}

TEST(DesignStore, DeletingNeedsAnExistingRowOfTheEntityAndKeepsTheFiles)
{
    TestHome home;
    TraceCapture trace;
    DesignStore store;
    const auto id = store.saveDesign(document, std::nullopt, false);
    QFile preview(home.filePath(QStringLiteral("Documents/1.png")));
    ASSERT_TRUE(preview.open(QIODevice::WriteOnly));
    preview.close();

    EXPECT_FALSE(store.deleteDesign(std::nullopt));
    EXPECT_FALSE(store.deleteDesign(ObjectId { QStringLiteral("QuilletStore"), QStringLiteral("SavePhoto"), 99 }));
    EXPECT_FALSE(
        store.deleteDesign(ObjectId { QStringLiteral("QuilletStore"), QStringLiteral("SaveLogo"), id->rowid }));
    EXPECT_FALSE(store.deleteDesign(ObjectId { QStringLiteral("OtherStore"), QStringLiteral("SavePhoto"), id->rowid }));
    EXPECT_EQ(store.allDesigns().size(), 1);
    EXPECT_TRUE(store.deleteDesign(id));
    EXPECT_FALSE(store.deleteDesign(id));
    EXPECT_TRUE(store.allDesigns().isEmpty());
    EXPECT_TRUE(preview.exists());
}

TEST(DesignStore, ListScreensReadEveryRowInOrder)
{
    TestHome home;
    TraceCapture trace;
    DesignStore store;
    const auto old = *store.saveDesign(
        QStringLiteral(R"({"image": "old.jpg", "resizables": [{"text": "hi"}], "fgImage": {"height": 500}})"),
        std::nullopt, false);
    const auto broken = *store.saveDesign(QStringLiteral("{\"sample_image\": "), std::nullopt, false);
    const auto current = *store.saveDesign(document, std::nullopt, true);
    setUpdatedAt(old, QStringLiteral("1700000000.3"));
    setUpdatedAt(broken, QStringLiteral("1700000000.2"));
    setUpdatedAt(current, QStringLiteral("1700000000.1"));

    const QList<SavedDesign> designs = store.savedDesigns();
    ASSERT_EQ(designs.size(), 3);
    EXPECT_EQ(designs[0].document->sample_image, QStringLiteral("old.jpg"));
    EXPECT_EQ(designs[0].document->text_json->first()->text, QStringLiteral("hi"));
    EXPECT_EQ(designs[0].document->height, 500);
    EXPECT_FALSE(designs[1].document->sample_image); // unreadable text is the empty design
    EXPECT_EQ(designs[2].document->width, 100);
    EXPECT_TRUE(designs[2].row.is_video);
}

TEST(DesignStore, LogosKeepOneRowPerName)
{
    TestHome home;
    TraceCapture trace;
    DesignStore store;
    const auto a = store.saveLogo(QStringLiteral("a.png"));
    const auto b = store.saveLogo(QStringLiteral("b.png"));
    const auto again = store.saveLogo(QStringLiteral("a.png"));
    ASSERT_TRUE(a && b && again);
    EXPECT_EQ(again->objectID, a->objectID);
    const QList<LogoImage> logos = store.allLogos();
    ASSERT_EQ(logos.size(), 2);
    EXPECT_EQ(logos[0].img_name, QStringLiteral("a.png"));
    EXPECT_EQ(logos[1].objectID, b->objectID);
    EXPECT_FALSE(store.deleteDesign(a->objectID)); // an art is no design
    EXPECT_TRUE(store.deleteLogo(a->objectID));
    EXPECT_FALSE(store.deleteLogo(a->objectID));
    EXPECT_FALSE(store.deleteLogo(std::nullopt));
    EXPECT_EQ(store.allLogos().size(), 1);
    EXPECT_EQ(trace.text().count(QStringLiteral("saved.\n")), 3);
}

TEST(DesignStore, AStoreThatCannotOpenFailsEachOperationWithATrace)
{
    TestHome home;
    TraceCapture trace;
    DesignStore store(home.filePath(QStringLiteral("missing/dir/QuilletStore.sqlite")));
    EXPECT_FALSE(store.saveDesign(document, std::nullopt, false));
    EXPECT_FALSE(store.lastDesignObjectID());
    EXPECT_TRUE(store.allDesigns().isEmpty());
    EXPECT_FALSE(store.saveLogo(QStringLiteral("a.png")));
    EXPECT_FALSE(store.deleteDesign(ObjectId::fromString(QStringLiteral("x-quillet://QuilletStore/SavePhoto/p1"))));
    const QString text = trace.text();
    EXPECT_TRUE(text.startsWith(QStringLiteral("Could not save. unable to open database file, ")));
    EXPECT_TRUE(text.contains(QStringLiteral("\nCould not fetch. ")));
}

TEST(ObjectIdText, OnlyItsOwnFormIsRead)
{
    const ObjectId id { QStringLiteral("QuilletStore"), QStringLiteral("SaveLogo"), 42 };
    EXPECT_EQ(ObjectId::fromString(id.toString()), id);
    for (const char *text : { "", "x-quillet://QuilletStore/SavePhoto/p0", "x-quillet://QuilletStore/SavePhoto/12",
             "x-quillet://QuilletStore/SavePhoto/p12/", "x-quillet://QuilletStore/p12",
             "x-coredata://QuilletStore/SavePhoto/p12", "x-quillet://QuilletStore/SavePhoto/p99999999999999999999" })
        EXPECT_FALSE(ObjectId::fromString(QString::fromLatin1(text))) << text;
}
