#include "reviewprompt.h"

#include "alertmodel.h"
#include "applog.h"
#include "navigationcontroller.h"
#include "userdefaults.h"

#include <QDateTime>
#include <QDesktopServices>
#include <QJsonArray>

namespace ReviewPrompt {

namespace {

const QString requestsKey = QStringLiteral("review_prompt_dates");
constexpr int promptsPerYear = 3;
constexpr qint64 secondsPerYear = 365LL * 24 * 60 * 60;

// The times the prompt was shown within the last year; older ones no longer count.
QJsonArray recentPrompts(qint64 now)
{
    QJsonArray recent;
    for (const QJsonValue shown : UserDefaults::standard().value(requestsKey).toArray()) {
        if (now - shown.toInteger() < secondsPerYear)
            recent.append(shown);
    }
    return recent;
}

} // namespace

void requestReview(NavigationController *navigation)
{
    UserDefaults &defaults = UserDefaults::standard();
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    QJsonArray shown = recentPrompts(now);
    if (!navigation || defaults.boolean(DefaultsKey::isRatted, false) || shown.size() >= promptsPerYear)
        return;
    shown.append(now);
    defaults.setValue(requestsKey, shown);
    auto *prompt = new AlertModel(QObject::tr("Enjoying Quillet?"), QObject::tr("Tap Rate to review it in the store."));
    prompt->addAction(QObject::tr("Not Now"), AlertModel::Style::Cancel);
    prompt->addAction(QObject::tr("Rate"), AlertModel::Style::Default, [] {
        UserDefaults::standard().setBoolean(DefaultsKey::isRatted, true);
        openReviewPage();
    });
    navigation->presentAlert(prompt);
}

QUrl reviewPageUrl()
{
    if (const auto configured = UserDefaults::standard().string(QStringLiteral("store_review_url"));
        configured && !configured->isEmpty())
        return QUrl(*configured);
    return QUrl(QStringLiteral(QUILLET_STORE_REVIEW_URL));
}

bool openReviewPage()
{
    const QUrl page = reviewPageUrl();
    const bool opened = QDesktopServices::openUrl(page);
    if (!opened)
        AppLog::print(QStringLiteral("Could not open the review page ") + page.toString());
    return opened;
}

} // namespace ReviewPrompt
