#pragma once

#include "apphelpers.h"
#include "browsepack.h"
#include "browsescreens.h"
#include "cardgridvc.h"
#include "editimageportraitmode.h"
#include "navigationcontroller.h"
#include "preparationscreens.h"
#include "reachability.h"
#include "serverclient.h"
#include "storyboard.h"
#include "testhome.h"

#include <QNetworkAccessManager>
#include <QTest>

#include <gtest/gtest.h>

/**
 * The browsing screens as the application wires them, against the content server with the browsing pack:
 * a fresh home, the client, the storyboard with the browsing, preview and image editor screens, and a
 * navigation stack with a bare root.
 */
class BrowseFixture : public ::testing::Test
{
protected:
    BrowseFixture()
        : client(&network, QUrl(pack.apiBase()))
    {
        BrowseScreens::registerScreens(storyboard, &client, [this](bool video) { return ratios(video); });
        PreparationScreens::registerScreens(storyboard, &client, nullptr);
        storyboard.registerScreen<EditImagePortraitMode>(QStringLiteral("EditImagePortraitMode"), QUrl());
        navigation.setRoot(new ViewController());
    }
    ~BrowseFixture() override { Reachability::setForcedConnection(std::nullopt); }

    /** The lists that CreateOwnVC reads; the shipped file unless a test sets its own. */
    std::function<QList<std::shared_ptr<CustomRatio>>(bool video)> ratios
        = [](bool video) { return AppHelpers::customRatios(video); };

    /** Makes the screen of `identifier` and pushes it, as its opener would; null when it is not of type T. */
    template<class T> T *push(const QString &identifier, const std::function<void(T *)> &prepare = {})
    {
        auto *screen = qobject_cast<T *>(storyboard.instantiate(identifier));
        if (screen && prepare)
            prepare(screen);
        if (screen)
            navigation.push(screen, false);
        return screen;
    }

    /** Waits until `busy` says the calls are over. */
    static bool settle(const std::function<bool()> &busy)
    {
        return QTest::qWaitFor([&] { return !busy(); }, 15000);
    }
    static bool settle(const CardGridVC *grid)
    {
        return settle([grid] { return grid->busy(); });
    }

    /** The `json_id`s of a grid's cards, in order. */
    static QList<qint64> jsonIds(const CardGridVC *grid)
    {
        QList<qint64> ids;
        for (const auto &card : grid->items()->cards())
            ids.append(card->json_id.value_or(-1));
        return ids;
    }

    TestHome home;
    BrowsePack pack;
    QNetworkAccessManager network;
    ServerClient client;
    Storyboard storyboard;
    NavigationController navigation;
};
