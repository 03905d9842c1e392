#include "fontpickerpagervc.h"

#include "applog.h"
#include "fontpickercustomvc.h"
#include "fontpickerdownloadvc.h"
#include "fontpickerfontlistvc.h"
#include "navigationcontroller.h"
#include "storyboard.h"

FontpickerPagerVC::FontpickerPagerVC(QObject *parent)
    : FontpickerPage(parent)
    , m_download(new FontpickerDownloadVC(this))
    , m_free(new FontpickerFontListVC(1, this))
    , m_paid(new FontpickerFontListVC(0, this))
    , m_custom(new FontpickerCustomVC(this))
{
    setTitle(QStringLiteral("Fonts"));
    connect(m_custom, &FontpickerCustomVC::leaveRequested, this, &FontpickerPagerVC::back);
}

FontpickerPagerVC::~FontpickerPagerVC()
{
    AppLog::print(QStringLiteral("FontpickerPagerVC remove from memory"));
}

QStringList FontpickerPagerVC::tabTitles() const
{
    return { QStringLiteral("DOWNLOADED"), QStringLiteral("FREE"), QStringLiteral("PAID"), QStringLiteral("CUSTOM") };
}

QList<QObject *> FontpickerPagerVC::pages() const
{
    return { m_download, m_free, m_paid, m_custom };
}

void FontpickerPagerVC::setFontpicker(QFFontpicker *fontpicker)
{
    FontpickerPage::setFontpicker(fontpicker);
    for (QObject *page : pages())
        static_cast<FontpickerPage *>(page)->setFontpicker(fontpicker);
}

void FontpickerPagerVC::viewDidLoad()
{
    m_download->viewDidLoad();
    m_free->viewDidLoad();
    m_paid->viewDidLoad();
}

void FontpickerPagerVC::setCurrentIndex(int index)
{
    if (index == m_currentIndex || index < 0 || index >= pages().size())
        return;
    m_currentIndex = index;
    Q_EMIT currentIndexChanged();
    static_cast<FontpickerPage *>(pages().at(index))->viewWillAppear();
}

void FontpickerPagerVC::howTo()
{
    NavigationController *stack = navigationController();
    if (!stack || !m_storyboard)
        return;
    if (ViewController *howTo = m_storyboard->instantiate(QStringLiteral("FontpickerHowToUseVC")))
        stack->push(howTo);
}

void FontpickerPagerVC::back()
{
    if (NavigationController *stack = navigationController(); stack && stack->topViewController() == this)
        stack->pop();
}
