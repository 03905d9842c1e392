#include "designstore.h"
#include "mapper.h"
#include "testhome.h"
#include "tracecapture.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRandomGenerator>
#include <QThread>

#include <gtest/gtest.h>

namespace {

// Version numbers that the writer has reported as saved.
qint64 lastReported(QProcess &writer, qint64 reported)
{
    while (writer.canReadLine())
        reported = writer.readLine().trimmed().toLongLong();
    return reported;
}

} // namespace

// A writer killed at a random moment leaves the version it last reported, or the one it was
// committing, and never a damaged or missing row.
TEST(DesignStoreCrash, AKilledWriterLeavesTheLastSavedVersion)
{
    TestHome home;
    TraceCapture trace;
    const auto id
        = DesignStore().saveDesign(QStringLiteral(R"({"sample_image": "", "json_id": 0})"), std::nullopt, false);
    ASSERT_TRUE(id);
    qint64 saved = 0;
    int committedUnreported = 0;
    for (int round = 0; round < 15; ++round) {
        QProcess writer;
        writer.setStandardErrorFile(QProcess::nullDevice());
        writer.start(QCoreApplication::applicationDirPath() + QStringLiteral("/designs_crashwriter"),
            { id->toString(), QString::number(saved + 1) });
        ASSERT_TRUE(writer.waitForStarted());
        qint64 reported = saved;
        while (reported == saved && writer.waitForReadyRead(10000))
            reported = lastReported(writer, reported);
        ASSERT_GT(reported, saved) << "the writer never saved";
        QThread::msleep(QRandomGenerator::global()->bounded(30));
        writer.kill();
        writer.waitForFinished();
        reported = lastReported(writer, reported);

        DesignStore store;
        const QList<SavePhoto> rows = store.allDesigns();
        ASSERT_EQ(rows.size(), 1);
        const auto json = Mapper::map<Json>(rows.first().jsonString);
        ASSERT_TRUE(json) << "round " << round << ": the stored text is damaged";
        ASSERT_TRUE(json->json_id && json->text_json);
        EXPECT_EQ(json->text_json->size(), 50);
        EXPECT_GE(*json->json_id, reported);
        EXPECT_LE(*json->json_id, reported + 1);
        committedUnreported += *json->json_id == reported + 1;
        saved = *json->json_id;
    }
    std::printf("kills that landed while a version was being committed: %d of 15\n", committedUnreported);
}
