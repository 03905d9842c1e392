#include "fontpickercustomvc.h"

#include "alertmodel.h"
#include "applog.h"
#include "navigationcontroller.h"
#include "qffontpicker.h"
#include "userdefaults.h"

FontpickerCustomVC::FontpickerCustomVC(QObject *parent)
    : FontpickerPage(parent)
{ }

FontpickerCustomVC::~FontpickerCustomVC()
{
    AppLog::print(QStringLiteral("Add custom font page remove from memory"));
}

void FontpickerCustomVC::viewWillAppear()
{
    NavigationController *stack = navigation();
    if (!stack || UserDefaults::standard().contains(DefaultsKey::hasOpenCustomFontpicker))
        return;
    auto *alert = new AlertModel(QStringLiteral("Alert"),
        QStringLiteral("I have the right to this font or I own a license for my intended purposes.Application is "
                       "not responsible for any legal issues."));
    alert->addAction(QStringLiteral("CANCEL"), AlertModel::Style::Cancel, [page = QPointer<FontpickerCustomVC>(this)] {
        if (page)
            Q_EMIT page->leaveRequested();
    });
    alert->addAction(QStringLiteral("I ACCEPT"), AlertModel::Style::Default,
        [] { UserDefaults::standard().setBoolean(DefaultsKey::hasOpenCustomFontpicker, true); });
    stack->presentAlert(alert);
}

void FontpickerCustomVC::documentPicked(const QUrl &file)
{
    if (QFFontpicker *library = fontpicker())
        showMessage(library->addCustomFont(file.isLocalFile() ? file.toLocalFile() : file.toString()));
}
