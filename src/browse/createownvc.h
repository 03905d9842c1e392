#pragma once

#include "customratio.h"
#include "json.h"
#include "viewcontroller.h"

#include <QList>
#include <QPointer>
#include <QVariantList>

#include <functional>
#include <memory>
#include <optional>

class AlertModel;
class Storyboard;

/**
 * The blank start, "WHAT DO YOU NEED?": the canvas sizes of images and of videos, and "Custom Size"
 * with its own width and height. A size becomes a new empty design in the editor that takes it; a video
 * size first goes to the choice of a background video.
 */
class CreateOwnVC : public ViewController
{
    Q_OBJECT
    /** The image sizes as the view lists them: name, ratio, image, width, height. */
    Q_PROPERTY(QVariantList imageSizes READ imageSizes NOTIFY listsChanged)
    Q_PROPERTY(QVariantList videoSizes READ videoSizes NOTIFY listsChanged)
public:
    /** The entry that asks for a size of the user's own. */
    static inline const QString customSizeName = QStringLiteral("Custom Size");
    static constexpr double minimumSide = 100;
    static constexpr double maximumSide = 2048;

    /** The lists of "custom_ratio.json", video or image, as the application reads them. */
    using RatioSource = std::function<QList<std::shared_ptr<CustomRatio>>(bool video)>;

    explicit CreateOwnVC(QObject *parent = nullptr);

    QList<std::shared_ptr<CustomRatio>> imageArray;
    QList<std::shared_ptr<CustomRatio>> videoArray;
    std::optional<int> selectedIndex;
    double customWidth = 0;
    double customHeight = 0;
    bool is_custom = false;
    bool is_video = false;
    /** The design made last. */
    std::shared_ptr<Json> contentJson;
    /** The editor that takes an image design: "EditImagePortraitMode", or "HighLightEditor". */
    QString index = QStringLiteral("EditImagePortraitMode");

    void setServices(RatioSource ratios, const Storyboard *storyboard);

    [[nodiscard]] QVariantList imageSizes() const;
    [[nodiscard]] QVariantList videoSizes() const;

    /** A text that "Create" accepts for one side: a number from 100 to 2048. */
    [[nodiscard]] static bool isValidSide(const QString &text);
    /** The blank design of that size. */
    [[nodiscard]] static std::shared_ptr<Json> blankDocument(double width, double height);

    /** Reads both lists. */
    void viewDidLoad() override;
    /** A size of the image (`video` false) or video list. */
    Q_INVOKABLE void didSelect(bool video, int row);

Q_SIGNALS:
    void listsChanged();

private:
    void showCustomSizeAlert();
    void createCustom(double width, double height);
    void create();
    void openEditor();
    void openBackgroundVideos();
    [[nodiscard]] static QVariantList sizes(const QList<std::shared_ptr<CustomRatio>> &list);

    RatioSource m_ratios;
    const Storyboard *m_storyboard = nullptr;
};
