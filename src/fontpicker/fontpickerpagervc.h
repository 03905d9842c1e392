#pragma once

#include "fontpickerpage.h"

#include <QList>
#include <QStringList>

class FontpickerCustomVC;
class FontpickerDownloadVC;
class FontpickerFontListVC;
class Storyboard;

/** "Fonts": the four tabs DOWNLOADED, FREE, PAID, CUSTOM, and the "How to ?" item. */
class FontpickerPagerVC : public FontpickerPage
{
    Q_OBJECT
    Q_PROPERTY(QStringList tabTitles READ tabTitles CONSTANT)
    /** The tab pages, in tab order; owned by this pager. */
    Q_PROPERTY(QList<QObject *> pages READ pages CONSTANT)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentIndexChanged)
public:
    explicit FontpickerPagerVC(QObject *parent = nullptr);
    ~FontpickerPagerVC() override;

    [[nodiscard]] QStringList tabTitles() const;
    [[nodiscard]] QList<QObject *> pages() const;
    [[nodiscard]] int currentIndex() const { return m_currentIndex; }
    void setCurrentIndex(int index);
    void setFontpicker(QFFontpicker *fontpicker) override;
    /** Where the how-to screen comes from. */
    void setStoryboard(const Storyboard *storyboard) { m_storyboard = storyboard; }

    [[nodiscard]] FontpickerDownloadVC *downloadPage() const { return m_download; }
    [[nodiscard]] FontpickerFontListVC *freePage() const { return m_free; }
    [[nodiscard]] FontpickerFontListVC *paidPage() const { return m_paid; }
    [[nodiscard]] FontpickerCustomVC *customPage() const { return m_custom; }

    void viewDidLoad() override;
    /** "How to ?": pushes FontpickerHowToUseVC. */
    Q_INVOKABLE void howTo();
    Q_INVOKABLE void back();

Q_SIGNALS:
    void currentIndexChanged();

private:
    FontpickerDownloadVC *const m_download;
    FontpickerFontListVC *const m_free;
    FontpickerFontListVC *const m_paid;
    FontpickerCustomVC *const m_custom;
    int m_currentIndex = 0;
    const Storyboard *m_storyboard = nullptr;
};
