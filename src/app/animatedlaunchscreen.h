#pragma once

#include "viewcontroller.h"

#include <QStringList>

class ServerClient;
class Storyboard;

/**
 * The animated launch screen: while the logo animation plays once, the first pages of the image and video
 * story catalogs are fetched into the cache; then the home screen becomes the root.
 */
class AnimatedLaunchScreen : public ViewController
{
    Q_OBJECT
    /** The one letter under the logo. */
    Q_PROPERTY(QString logoLetter READ logoLetter CONSTANT)
    /** The pictures of the four scrolling columns, by column; names end in "_img_1" to "_img_4". */
    Q_PROPERTY(QStringList columnPictures READ columnPictures CONSTANT)
public:
    explicit AnimatedLaunchScreen(QObject *parent = nullptr);

    /** Where HomeVC comes from when the animation ends. */
    void setStoryboard(const Storyboard *storyboard) { m_storyboard = storyboard; }
    /** The client whose cache the launch warms. */
    void setServerClient(ServerClient *client) { m_client = client; }
    [[nodiscard]] QString logoLetter() const { return QStringLiteral("Q"); }
    [[nodiscard]] QStringList columnPictures() const;

    /** The logo animation finished: HomeVC becomes the new root. */
    Q_INVOKABLE void animationCompleted();
    /** The logo animation was cancelled: nothing further happens. */
    Q_INVOKABLE void animationCancelled();

    /**
     * Warms the catalog cache: the first page of image stories (47) and of video stories (48); of the answers
     * only the image stories' first card pictures are kept, in the picture cache.
     */
    void viewDidLoad() override;

private:
    const Storyboard *m_storyboard = nullptr;
    ServerClient *m_client = nullptr; // lives as long as the application
};
