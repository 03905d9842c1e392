#include "addnewbackgroundvc.h"

#include "alertmodel.h"
#include "catalogscreen.h"
#include "contentcategorypager.h"
#include "navigationcontroller.h"
#include "pickertarget.h"
#include "storyboard.h"

AddNewBackgroundVC::AddNewBackgroundVC(QObject *parent)
    : OwnPicturePage({ { QStringLiteral("Gallery"), QStringLiteral("bg_album") },
                         { QStringLiteral("Camera"), QStringLiteral("bg_camera") } },
        parent)
    , m_colorCell(new CreateColorCell(this, this))
{
    setTitle(QStringLiteral("Pick your own"));
}

void AddNewBackgroundVC::setServices(const PickerServices &services)
{
    m_storyboard = services.storyboard;
    m_colorCell->setColors(services.bgColors);
}

void AddNewBackgroundVC::selectRow(int row)
{
    if (row == 0) {
        Q_EMIT galleryRequested();
    } else if (row == 1) {
        // Taking a photograph needs a camera screen, which this build does not have.
        if (NavigationController *stack = navigation())
            stack->presentAlert((new AlertModel(QString(), QStringLiteral("Camera is not available on this device.")))
                                    ->addAction(QStringLiteral("OK")));
    }
}

void AddNewBackgroundVC::handBack(ContentCategoryPager &pager, const QImage &picture)
{
    pager.handBack([&](PickerTarget &target) { target.setNewBgImage(picture, QString()); });
}

void AddNewBackgroundVC::selectColor(const std::optional<QColor> &color)
{
    setColor = color;
    colorSelection();
}

void AddNewBackgroundVC::colorSelection()
{
    if (ContentCategoryPager *owner = pager())
        owner->handBack([this](PickerTarget &target) { target.setBackgroundColor(setColor); });
}

void AddNewBackgroundVC::openCustomColorPicker()
{
    NavigationController *stack = navigation();
    ViewController *made = m_storyboard ? m_storyboard->instantiate(QStringLiteral("CustomColorPicker")) : nullptr;
    auto *picker = qobject_cast<CustomColorPicker *>(made);
    if (!stack || !picker) {
        delete made;
        return;
    }
    if (PickerTarget *target = pager() ? pager()->target() : nullptr)
        picker->defaultColor = target->backgroundColor().value_or(QColor(Qt::white));
    picker->delegate = this;
    stack->push(picker);
}

void AddNewBackgroundVC::customColorPicked(const QColor &color)
{
    selectColor(color);
}
