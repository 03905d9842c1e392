#pragma once

#include "contentserverfixture.h"
#include "navigationcontroller.h"
#include "pickerscreens.h"
#include "pickertarget.h"
#include "serverclient.h"
#include "storyboard.h"
#include "testhome.h"
#include "viewcontroller.h"

#include <QNetworkAccessManager>
#include <QTest>

#include <functional>
#include <optional>

/** An editor as the pickers see it: it keeps what they hand back and counts its returns to the top. */
class FakeEditor : public ViewController, public PickerTarget
{
public:
    void setNewBgImage(const QImage &picture, const QString &url) override
    {
        newBgImage = picture;
        bg_image_url = url;
    }
    void setBackgroundColor(const std::optional<QColor> &color) override { pickedColor = color; }
    [[nodiscard]] std::optional<QColor> backgroundColor() const override { return currentColor; }
    void setNewStickerImage(const PickedSticker &picked) override { sticker = picked; }
    void viewWillAppear() override { ++appearances; }

    QImage newBgImage;
    QString bg_image_url;
    /** Set once a colour was handed back; holds none for "Transparent". */
    std::optional<std::optional<QColor>> pickedColor;
    std::optional<QColor> currentColor;
    std::optional<PickedSticker> sticker;
    int appearances = 0;
};

/**
 * The pickers against the content server, over an editor at the root of a navigation stack: a fake one,
 * or a real one that `prepare` sets up before it loads.
 */
template<class Editor = FakeEditor> class PickerFixture
{
public:
    explicit PickerFixture(const std::function<void(Editor &)> &prepare = {})
        : client(&network, QUrl(server.apiBase()))
    {
        PickerScreens::registerScreens(storyboard, &client, { "FFFFFF", "#000000", "E05863" });
        if (prepare)
            prepare(*editor);
        navigation.setRoot(editor);
    }

    /** A screen made by the storyboard, set up by `setUp`, pushed over the editor. */
    template<class Screen> Screen *push(const QString &identifier, const std::function<void(Screen &)> &setUp = {})
    {
        auto *screen = qobject_cast<Screen *>(storyboard.instantiate(identifier));
        if (screen && setUp)
            setUp(*screen);
        navigation.push(screen, false);
        return screen;
    }

    static bool waitFor(const std::function<bool()> &condition) { return QTest::qWaitFor(condition, 20000); }

    TestHome home;
    TestContentServer server;
    QNetworkAccessManager network;
    ServerClient client;
    Storyboard storyboard;
    NavigationController navigation;
    Editor *const editor = new Editor();
};
