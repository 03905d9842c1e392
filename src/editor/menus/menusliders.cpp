#include "menusliders.h"

#include "backgroundimageview.h"
#include "backgroundtools.h"
#include "editorsession.h"
#include "feathermask.h"
#include "toolsliders.h"

#include <QtMath>

#include <cmath>

namespace {

struct Range
{
    qreal minimum;
    qreal maximum;
};

// The ranges are the screen's choice; the background's passes read the value as their formulas say.
Range rangeOf(MenuSliders::Kind kind)
{
    using Kind = MenuSliders::Kind;
    switch (kind) {
    case Kind::TextShadow:
        return { 0, 20 };
    case Kind::TextLetterSpacing:
        return { -5, 30 };
    case Kind::TextLineSpacing:
        return { 0, 60 };
    case Kind::Brightness:
    case Kind::Contrast:
    case Kind::Saturation:
        return { -100, 100 };
    case Kind::Feather:
        return { 0, 50 };
    case Kind::None:
        return { 0, 0 };
    case Kind::TextOpacity:
    case Kind::StickerOpacity:
    case Kind::Opacity:
        break;
    }
    return { 0, 100 };
}

BackgroundTools::Pass passOf(MenuSliders::Kind kind)
{
    switch (kind) {
    case MenuSliders::Kind::Brightness:
        return BackgroundTools::Pass::Brightness;
    case MenuSliders::Kind::Contrast:
        return BackgroundTools::Pass::Contrast;
    case MenuSliders::Kind::Saturation:
        return BackgroundTools::Pass::Saturation;
    default:
        return BackgroundTools::Pass::Opacity;
    }
}

bool actsOnBackground(MenuSliders::Kind kind)
{
    using Kind = MenuSliders::Kind;
    return kind == Kind::Opacity || kind == Kind::Brightness || kind == Kind::Contrast || kind == Kind::Saturation;
}

} // namespace

MenuSliders::MenuSliders(EditorSession &session)
    : QObject(&session)
    , m_session(session)
    , m_feather(new FeatherMask(this))
{
    connect(m_feather, &FeatherMask::maskReady, this,
        [this](const QImage &mask) { m_session.backgroundImageView->setFeatherMask(mask); });
}

MenuSliders::~MenuSliders() = default;

qreal MenuSliders::minimum() const
{
    return rangeOf(m_kind).minimum;
}

qreal MenuSliders::maximum() const
{
    return rangeOf(m_kind).maximum;
}

QString MenuSliders::lblSlider() const
{
    return QString::number(qRound(m_value));
}

qreal MenuSliders::startValue(Kind kind) const
{
    const LayerSelection &selection = m_session.selection;
    const ResizableTextView *text = selection.selectedView ? selection.selectedView->textView : nullptr;
    switch (kind) {
    case Kind::TextShadow:
        return text ? text->textShadowBlur.value_or(0) : 0;
    case Kind::TextOpacity:
        return text ? text->textAlpha * 100.0 : 100;
    case Kind::TextLetterSpacing:
        return text ? text->letterSpace : 0;
    case Kind::TextLineSpacing:
        return text ? text->paragraphStyle.lineSpacing : 0;
    case Kind::StickerOpacity:
        if (selection.selectedIconImgView)
            return selection.selectedIconImgView->contentImageView->alpha() * 100.0;
        if (selection.selectedBorderedImageView)
            return selection.selectedBorderedImageView->contentImageView->alpha() * 100.0;
        return 100;
    case Kind::Opacity:
        return 100;
    case Kind::Brightness:
    case Kind::Contrast:
    case Kind::Saturation:
    case Kind::Feather:
    case Kind::None:
        break;
    }
    return 0;
}

void MenuSliders::open(Kind kind)
{
    // The background's passes all start from the picture shown when the slider opens.
    if (actsOnBackground(kind))
        m_session.backgroundTools()->setupCoreImage();
    if (m_kind != kind) {
        m_kind = kind;
        Q_EMIT kindChanged();
    }
    setValue(startValue(kind));
}

void MenuSliders::openRotation()
{
    const LayerSelection &selection = m_session.selection;
    const LayerView *layer = selection.selectedView ? static_cast<LayerView *>(selection.selectedView.data())
                                                    : selection.selectedIconImgView.data();
    m_rotation = layer ? std::remainder(qRadiansToDegrees(layer->zAngle), 360.0) : 0.0;
    Q_EMIT valueChanged();
}

void MenuSliders::openScale()
{
    m_scale = m_session.sliders()->beginScale();
    Q_EMIT valueChanged();
}

void MenuSliders::close()
{
    if (m_kind == Kind::None)
        return;
    m_kind = Kind::None;
    Q_EMIT kindChanged();
}

void MenuSliders::setValue(qreal value)
{
    const Range range = rangeOf(m_kind);
    m_value = qBound(range.minimum, value, range.maximum);
    Q_EMIT valueChanged();
}

void MenuSliders::sliderChanged(qreal value)
{
    setValue(value);
    ToolSliders *layer = m_session.sliders();
    switch (m_kind) {
    case Kind::TextShadow:
        layer->setShadow(m_value);
        break;
    case Kind::TextOpacity:
    case Kind::StickerOpacity:
        layer->setOpacity(m_value);
        break;
    case Kind::TextLetterSpacing:
        layer->setLetterSpacing(m_value);
        break;
    case Kind::TextLineSpacing:
        layer->setLineSpacing(m_value);
        break;
    case Kind::Opacity:
    case Kind::Brightness:
    case Kind::Contrast:
    case Kind::Saturation:
        m_session.backgroundTools()->adjust(passOf(m_kind), m_value);
        break;
    case Kind::Feather: {
        const BackgroundImageView *background = m_session.backgroundImageView;
        if (!background->image().isNull())
            m_feather->request(background->image(), m_value, background->bounds().size().toSize());
        break;
    }
    case Kind::None:
        break;
    }
}

void MenuSliders::sliderDidEndSliding()
{
    ToolSliders *layer = m_session.sliders();
    switch (m_kind) {
    case Kind::TextShadow:
        layer->sliderDidEndSliding(ToolSliders::Slider::Shadow);
        break;
    case Kind::TextOpacity:
    case Kind::StickerOpacity:
        layer->sliderDidEndSliding(ToolSliders::Slider::Opacity);
        break;
    case Kind::TextLetterSpacing:
        layer->sliderDidEndSliding(ToolSliders::Slider::LetterSpacing);
        break;
    case Kind::TextLineSpacing:
        layer->sliderDidEndSliding(ToolSliders::Slider::LineSpacing);
        break;
    case Kind::Opacity:
    case Kind::Brightness:
    case Kind::Contrast:
    case Kind::Saturation:
        m_session.backgroundTools()->adjustmentDidEnd();
        break;
    case Kind::Feather: // the feather masks the view and is no step of the document
    case Kind::None:
        break;
    }
}

void MenuSliders::rotationChanged(qreal degrees)
{
    const qreal bounded = qBound(-180.0, degrees, 180.0);
    m_session.sliders()->rotate(qDegreesToRadians(bounded - m_rotation));
    m_rotation = bounded;
    Q_EMIT valueChanged();
}

void MenuSliders::rotationDidEnd()
{
    m_session.sliders()->sliderDidEndSliding(ToolSliders::Slider::Rotation);
}

void MenuSliders::scaleChanged(qreal value)
{
    m_scale = qBound(0.0, value, scaleMaximum());
    m_session.sliders()->scale(m_scale);
    Q_EMIT valueChanged();
}

void MenuSliders::scaleDidEnd()
{
    m_session.sliders()->sliderDidEndSliding(ToolSliders::Slider::Scale);
}
