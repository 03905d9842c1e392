#include "cropviewcontroller.h"

#include "croptarget.h"
#include "navigationcontroller.h"
#include "storyboard.h"

#include <QFutureWatcher>
#include <QTransform>
#include <QtConcurrent/QtConcurrentRun>

// Width and height of each row; "Free" has none, "Original" takes the picture's own.
const CropViewController::Ratio CropViewController::ratios[] = {
    { "Free", 0, 0 },
    { "Original", 0, 0 },
    { "Square", 1, 1 },
    { "3:2", 3, 2 },
    { "4:3", 4, 3 },
    { "16:9", 16, 9 },
    { "2:3", 2, 3 },
    { "3:4", 3, 4 },
    { "9:16", 9, 16 },
};

static_assert(int(CropBox::Handle::TopLeft) == CropViewController::TopLeft
    && int(CropBox::Handle::Left) == CropViewController::Left);

namespace {

constexpr int freeRow = 0;
constexpr int originalRow = 1;

} // namespace

CropViewController::CropViewController(QObject *parent)
    : ViewController(parent)
{ }

CropViewController *CropViewController::present(
    const Storyboard &storyboard, NavigationController &navigation, const QImage &image, CropTarget *delegate)
{
    ViewController *made = storyboard.instantiate(QStringLiteral("CropViewController"));
    auto *crop = qobject_cast<CropViewController *>(made);
    if (!crop) {
        delete made;
        return nullptr;
    }
    crop->setImage(image);
    crop->delegate = delegate;
    navigation.present(crop);
    return crop;
}

void CropViewController::setImage(const QImage &image)
{
    const quint64 generation = ++m_generation;
    m_image = image;
    m_box = CropBox(image.size());
    m_ratioIndex = freeRow;
    m_held.reset();
    m_imageGesture = false;
    Q_EMIT imageChanged();
    Q_EMIT interactingChanged();
    Q_EMIT layoutChanged();
    if (image.width() <= previewSide && image.height() <= previewSide) {
        setBusy(m_preparing, false);
        m_scaled = image;
        showPreview();
        return;
    }
    m_scaled = QImage();
    showPreview();
    setBusy(m_preparing, true);
    auto *watcher = new QFutureWatcher<QImage>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, generation] {
        watcher->deleteLater();
        if (generation != m_generation)
            return;
        m_scaled = watcher->result();
        showPreview();
        setBusy(m_preparing, false);
    });
    watcher->setFuture(QtConcurrent::run(
        [image] { return image.scaled(previewSide, previewSide, Qt::KeepAspectRatio, Qt::SmoothTransformation); }));
}

void CropViewController::showPreview()
{
    m_preview
        = m_box.angle() == 0 || m_scaled.isNull() ? m_scaled : m_scaled.transformed(QTransform().rotate(m_box.angle()));
    Q_EMIT previewChanged();
}

void CropViewController::setBusy(bool &flag, bool value)
{
    const bool was = isBusy();
    flag = value;
    if (isBusy() != was)
        Q_EMIT busyChanged();
}

QRectF CropViewController::area() const
{
    return QRectF(QPointF(), m_viewSize).adjusted(padding, padding, -padding, -padding);
}

CropBox::Placement CropViewController::placement() const
{
    return m_held ? *m_held : m_box.fitted(area());
}

bool CropViewController::isLaidOut() const
{
    return hasImage() && !area().isEmpty();
}

QRectF CropViewController::imageRect() const
{
    return isLaidOut() ? placement().toView(QRectF(QPointF(), m_box.turnedSize())) : QRectF();
}

QRectF CropViewController::cropBoxRect() const
{
    return isLaidOut() ? placement().toView(m_box.cropRect()) : QRectF();
}

QStringList CropViewController::aspectRatioTitles() const
{
    QStringList titles;
    for (const Ratio &ratio : ratios)
        titles.append(QString::fromLatin1(ratio.title));
    return titles;
}

void CropViewController::setViewSize(qreal width, qreal height)
{
    const QSizeF size(width, height);
    if (size == m_viewSize)
        return;
    m_viewSize = size;
    Q_EMIT layoutChanged();
}

void CropViewController::beginHandleDrag(int handle)
{
    if (!hasImage() || isInteracting() || handle < TopLeft || handle > Left)
        return;
    m_handle = static_cast<CropBox::Handle>(handle);
    m_startCrop = m_box.cropRect();
    m_held = m_box.fitted(area());
    Q_EMIT interactingChanged();
}

void CropViewController::moveHandle(qreal dx, qreal dy)
{
    if (!m_held)
        return;
    m_box.dragHandle(m_startCrop, m_handle, QPointF(dx, dy), *m_held, area());
    Q_EMIT layoutChanged();
}

void CropViewController::endHandleDrag()
{
    if (!m_held)
        return;
    // Not interacting first, so that the view animates the box into its fitted place.
    m_held.reset();
    Q_EMIT interactingChanged();
    Q_EMIT layoutChanged();
}

void CropViewController::beginImageGesture()
{
    if (!hasImage() || isInteracting())
        return;
    m_imageGesture = true;
    m_startCrop = m_box.cropRect();
    m_startPlacement = m_box.fitted(area());
    Q_EMIT interactingChanged();
}

void CropViewController::moveImage(qreal dx, qreal dy, qreal scale, qreal cx, qreal cy)
{
    if (!m_imageGesture)
        return;
    m_box.moveImage(m_startCrop, m_startPlacement, QPointF(dx, dy), scale, QPointF(cx, cy));
    Q_EMIT layoutChanged();
}

void CropViewController::endImageGesture()
{
    if (!m_imageGesture)
        return;
    m_imageGesture = false;
    Q_EMIT interactingChanged();
}

void CropViewController::zoomImage(qreal scale, qreal cx, qreal cy)
{
    if (isInteracting())
        return;
    beginImageGesture();
    moveImage(0, 0, scale, cx, cy);
    endImageGesture();
}

void CropViewController::rotateClockwise()
{
    turn(true);
}

void CropViewController::rotateCounterclockwise()
{
    turn(false);
}

void CropViewController::turn(bool clockwise)
{
    if (!hasImage() || isInteracting())
        return;
    if (clockwise)
        m_box.rotateClockwise();
    else
        m_box.rotateCounterclockwise();
    // A kept ratio turns with the picture: 3:2 becomes 2:3.
    const Ratio &kept = ratios[m_ratioIndex];
    for (int row = 0; row < int(std::size(ratios)); ++row) {
        if (kept.width > 0 && ratios[row].width == kept.height && ratios[row].height == kept.width)
            m_ratioIndex = row;
    }
    showPreview();
    Q_EMIT layoutChanged();
}

void CropViewController::reset()
{
    if (!hasImage() || isInteracting())
        return;
    const bool turned = m_box.angle() != 0;
    m_box.reset();
    m_ratioIndex = freeRow;
    if (turned)
        showPreview();
    Q_EMIT layoutChanged();
}

void CropViewController::selectAspectRatio(int index)
{
    if (!hasImage() || isInteracting() || index < 0 || index >= int(std::size(ratios)))
        return;
    m_ratioIndex = index;
    const QSizeF turned = m_box.turnedSize();
    if (index == freeRow)
        m_box.setAspectRatio(std::nullopt);
    else if (index == originalRow)
        m_box.setAspectRatio(turned.width() / turned.height());
    else
        m_box.setAspectRatio(ratios[index].width / ratios[index].height);
    Q_EMIT layoutChanged();
}

void CropViewController::done()
{
    if (!hasImage() || isBusy())
        return;
    setBusy(m_cropping, true);
    const QRect rect = m_box.pixelRect();
    const int angle = m_box.angle();
    auto *watcher = new QFutureWatcher<QImage>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, rect, angle] {
        watcher->deleteLater();
        setBusy(m_cropping, false);
        const QImage cropped = watcher->result();
        if (delegate)
            delegate->cropViewControllerDidCrop(*this, cropped, rect, angle);
        else
            dismiss();
    });
    watcher->setFuture(QtConcurrent::run([image = m_image, rect, angle] { return CropBox::crop(image, rect, angle); }));
}

void CropViewController::cancel()
{
    if (m_cropping)
        return;
    if (delegate)
        delegate->cropViewControllerDidFinishCancelled(*this);
    else
        dismiss();
}

void CropViewController::dismiss()
{
    NavigationController *stack = navigationController();
    if (stack && stack->topViewController() == this)
        stack->dismiss();
}
