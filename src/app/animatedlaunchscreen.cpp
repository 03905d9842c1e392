#include "animatedlaunchscreen.h"

#include "applog.h"
#include "navigationcontroller.h"
#include "storyboard.h"

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
