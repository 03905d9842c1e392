#include "showimagesample.h"

#include "prefixurl.h"
#include "templateresources.h"

ShowImageSample::ShowImageSample(QObject *parent)
    : TemplateSample(parent)
{ }

void ShowImageSample::prepare()
{
    // A template without is_sample is a fault of the server; it reads as false here.
    if (resultJson->is_sample.value_or(false)) {
        finish();
        return;
    }
    const QStringList names = TemplateResources::names(*resultJson, true);
    const quint64 current = run();
    resolveFonts([this, current, names] {
        if (!isCurrent(current))
            return;
        if (names.isEmpty())
            finish();
        else
            preload(names, [this] { finish(); });
    });
}

void ShowImageSample::finish()
{
    const std::optional<QString> cardImage = contentJson->sample_image;
    const std::optional<QString> ownImage = resultJson->sample_image;
    contentJson = resultJson;
    contentJson->sample_image = isHightLightEditor
        ? std::optional<QString>(PrefixUrl::pictureAddress(ownImage.value_or(QString())).toString())
        : cardImage;
    setState(State::Ready);
}

void ShowImageSample::open()
{
    setTitle(QString());
    pushEditor(isHightLightEditor ? QStringLiteral("HighLightEditor") : QStringLiteral("EditImagePortraitMode"));
}
