#pragma once

#include "qffontpicker.h"
#include "viewcontroller.h"

#include <QPointer>

class NavigationController;

/** What the font library's pages share: the library they work on, set by whoever makes them. */
class FontpickerPage : public ViewController
{
    Q_OBJECT
public:
    using ViewController::ViewController;

    [[nodiscard]] QFFontpicker *fontpicker() const { return m_fontpicker; }
    virtual void setFontpicker(QFFontpicker *fontpicker) { m_fontpicker = fontpicker; }

protected:
    /** This page's stack, or its pager's for a page shown as a tab. */
    [[nodiscard]] NavigationController *navigation() const;
    /** Shows an alert with one "OK" button over the page's navigation stack. */
    void showMessage(const QString &message);

private:
    QPointer<QFFontpicker> m_fontpicker;
};
