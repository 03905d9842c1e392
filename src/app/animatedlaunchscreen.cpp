#include "animatedlaunchscreen.h"

#include "applog.h"
#include "cardlistmodel.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "serverclient.h"
#include "storyboard.h"
#include "templatedataresponse.h"

namespace {

constexpr qint64 imageStories = 47;
constexpr qint64 videoStories = 48;
constexpr qint64 firstPage = 1;
constexpr qint64 itemCount = 20;
/** The cards of the first screen of the home grid: three rows of two on a phone. */
constexpr qsizetype firstScreenCards = 6;

} // namespace

AnimatedLaunchScreen::AnimatedLaunchScreen(QObject *parent)
    : ViewController(parent)
{ }

QStringList AnimatedLaunchScreen::columnPictures() const
{
    QStringList names;
    for (const char *theme : { "story", "quote", "sale", "travel" }) {
        for (int n = 1; n <= 4; ++n)
            names.append(QStringLiteral("%1_img_%2").arg(QLatin1String(theme)).arg(n));
    }
    return names;
}

void AnimatedLaunchScreen::viewDidLoad()
{
    if (!m_client)
        return;
    // The answers are written to the cache by the client itself; nothing waits for them. The pictures of
    // the first tab's first cards are decoded while the animation plays, so the home grid shows them at once.
    for (const qint64 subCategory : { imageStories, videoStories })
        m_client->getTemplateWithCatalogs(subCategory, 0, firstPage, itemCount, nullptr,
            [subCategory](const std::optional<QJsonObject> &dictionary, const std::optional<ApiError> &, bool usable) {
                if (subCategory != imageStories || !usable || !dictionary)
                    return;
                const auto answer = Mapper::map<TemplateDataResponse>(*dictionary);
                CardListModel::preloadPictures(answer->sample_cards.value_or(CardListModel::Cards()), firstScreenCards);
            });
}

void AnimatedLaunchScreen::animationCompleted()
{
    AppLog::print(QStringLiteral("Lottie Animation Completed"));
    NavigationController *navigation = navigationController();
    if (!navigation || !m_storyboard)
        return;
    if (ViewController *home = m_storyboard->instantiate(QStringLiteral("HomeVC")))
        navigation->setRoot(home);
}

void AnimatedLaunchScreen::animationCancelled()
{
    AppLog::print(QStringLiteral("Lottie Animation Cancelled"));
}
