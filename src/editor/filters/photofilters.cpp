#include "photofilters.h"

#include "colormatrix.h"
#include "colorramp.h"
#include "pixelkernels.h"

#include <QHash>

#include <functional>

namespace PhotoFilters {

namespace {

using Look = std::function<QImage(const QImage &)>;

QColor rgbF(float r, float g, float b)
{
    return QColor::fromRgbF(r, g, b);
}

/** The sepia tone at full intensity. */
ColorMatrix sepia()
{
    ColorMatrix tone;
    tone.m = { { { 0.393F, 0.769F, 0.189F }, { 0.349F, 0.686F, 0.168F }, { 0.272F, 0.534F, 0.131F } } };
    return tone;
}

Look matrix(const ColorMatrix &m)
{
    return [m](const QImage &picture) { return PixelKernels::colorMatrix(picture, m); };
}

Look ramp(const QList<std::pair<float, QColor>> &stops)
{
    return [table = ColorRamp::through(stops)](
               const QImage &picture) { return PixelKernels::luminanceRamp(picture, table); };
}

/** Shades of one colour at full intensity: black, the colour at its own luminance, white. */
Look monochrome(const QColor &color)
{
    const auto &w = ColorMatrix::luminance;
    const float level = float(w[0] * color.redF() + w[1] * color.greenF() + w[2] * color.blueF());
    return ramp({ { 0.0F, Qt::black }, { level, color }, { 1.0F, Qt::white } });
}

/** Each look at the defaults of its Core Image filter; the vignette with the menu's radius 3 and intensity 2. */
const QHash<QString, Look> &looks()
{
    static const QHash<QString, Look> table {
        // Default colour (0.6, 0.45, 0.3), intensity 1.
        { QStringLiteral("CIColorMonochrome"), monochrome(rgbF(0.6F, 0.45F, 0.3F)) },
        // Default of 6 levels.
        { QStringLiteral("CIColorPosterize"),
            [](const QImage &picture) { return PixelKernels::posterize(picture, 6); } },
        // Luminance onto the ramp between the default colours (0.3, 0, 0) and (1, 0.9, 0.8).
        { QStringLiteral("CIFalseColor"),
            ramp({ { 0.0F, rgbF(0.3F, 0.0F, 0.0F) }, { 1.0F, rgbF(1.0F, 0.9F, 0.8F) } }) },
        // Vintage film with exaggerated colour and higher contrast.
        { QStringLiteral("CIPhotoEffectChrome"),
            matrix(ColorMatrix::contrast(1.15F) * ColorMatrix::saturation(1.35F)) },
        // Vintage film with diminished colour: less saturation, lifted blacks.
        { QStringLiteral("CIPhotoEffectFade"),
            matrix(ColorMatrix::channels({ 0.84F, 0.84F, 0.84F }, { 0.1F, 0.09F, 0.08F })
                * ColorMatrix::saturation(0.6F)) },
        // Vintage film with desaturated, warm colours.
        { QStringLiteral("CIPhotoEffectInstant"),
            matrix(ColorMatrix::channels({ 1.0F, 0.96F, 0.84F }, { 0.06F, 0.05F, 0.04F })
                * ColorMatrix::saturation(0.75F)) },
        // Black-and-white film with low contrast.
        { QStringLiteral("CIPhotoEffectMono"), matrix(ColorMatrix::grey(0.08F, 0.9F)) },
        // Black-and-white film with exaggerated contrast.
        { QStringLiteral("CIPhotoEffectNoir"), matrix(ColorMatrix::contrast(1.6F) * ColorMatrix::grey(0.0F, 1.0F)) },
        // Vintage film with emphasised cool colours and lower contrast.
        { QStringLiteral("CIPhotoEffectProcess"),
            matrix(
                ColorMatrix::channels({ 0.9F, 0.98F, 1.04F }, { 0.0F, 0.02F, 0.06F }) * ColorMatrix::contrast(0.88F)) },
        // Vintage film with emphasised warm colours, brighter.
        { QStringLiteral("CIPhotoEffectTransfer"),
            matrix(ColorMatrix::channels({ 1.06F, 1.02F, 0.9F }, { 0.06F, 0.04F, 0.0F })
                * ColorMatrix::saturation(1.05F)) },
        // Default intensity 1.
        { QStringLiteral("CISepiaTone"), matrix(sepia()) },
        // Cold to hot as a thermal camera shows heat.
        { QStringLiteral("CIThermal"),
            ramp({ { 0.0F, rgbF(0.05F, 0.0F, 0.3F) }, { 0.25F, rgbF(0.1F, 0.1F, 0.9F) },
                { 0.5F, rgbF(0.85F, 0.0F, 0.6F) }, { 0.7F, rgbF(1.0F, 0.35F, 0.0F) },
                { 0.85F, rgbF(1.0F, 0.85F, 0.0F) }, { 1.0F, rgbF(1.0F, 1.0F, 0.85F) } }) },
        { QStringLiteral("CIVignette"),
            [](const QImage &picture) { return PixelKernels::vignette(picture, 3.0F, 2.0F); } },
        // A negative in cold greys, as a radiograph.
        { QStringLiteral("CIXRay"), ramp({ { 0.0F, rgbF(0.93F, 0.97F, 1.0F) }, { 1.0F, rgbF(0.0F, 0.03F, 0.08F) } }) },
    };
    return table;
}

} // namespace

const QList<FilterItem> &filterItemsArray()
{
    static const QList<FilterItem> items {
        { QStringLiteral("Normal"), QString() },
        { QStringLiteral("Monochrome"), QStringLiteral("CIColorMonochrome") },
        { QStringLiteral("Posterize"), QStringLiteral("CIColorPosterize") },
        { QStringLiteral("FalseColor"), QStringLiteral("CIFalseColor") },
        { QStringLiteral("Chrome"), QStringLiteral("CIPhotoEffectChrome") },
        { QStringLiteral("Fade"), QStringLiteral("CIPhotoEffectFade") },
        { QStringLiteral("Instant"), QStringLiteral("CIPhotoEffectInstant") },
        { QStringLiteral("Mono"), QStringLiteral("CIPhotoEffectMono") },
        { QStringLiteral("Noir"), QStringLiteral("CIPhotoEffectNoir") },
        { QStringLiteral("Process"), QStringLiteral("CIPhotoEffectProcess") },
        { QStringLiteral("Transfer"), QStringLiteral("CIPhotoEffectTransfer") },
        { QStringLiteral("Sepia"), QStringLiteral("CISepiaTone") },
        { QStringLiteral("Thermal"), QStringLiteral("CIThermal") },
        { QStringLiteral("Vignette"), QStringLiteral("CIVignette") },
        { QStringLiteral("XRay"), QStringLiteral("CIXRay") },
    };
    return items;
}

bool isFilter(const QString &filter)
{
    return looks().contains(filter);
}

QImage applyFilter(const QImage &picture, const QString &filter)
{
    const auto look = looks().constFind(filter);
    return look == looks().cend() ? picture : (*look)(picture);
}

} // namespace PhotoFilters
