#pragma once

#include "viewcontroller.h"

#include <QImage>
#include <QUrl>
#include <QVariantList>

class ContentCategoryPager;
class NavigationController;

/**
 * What the two "Pick your own" pages share: rows (CreateBgCell) that lead to the gallery, a picked
 * picture read off the GUI thread, and its hand-back to the editor through the pager.
 */
class OwnPicturePage : public ViewController
{
    Q_OBJECT
    /** The rows: maps with "title" and "image" (the name of the row's icon). */
    Q_PROPERTY(QVariantList rows READ rows CONSTANT)
    /** A picked picture is being read. */
    Q_PROPERTY(bool isPreparing READ isPreparing NOTIFY isPreparingChanged)
public:
    [[nodiscard]] QVariantList rows() const;
    [[nodiscard]] bool isPreparing() const { return m_preparing; }

    /** A tap on a row. */
    Q_INVOKABLE virtual void selectRow(int row) = 0;
    /** A file picked in the gallery: read, then handed back; a file that is no picture is refused. */
    Q_INVOKABLE void pickedFile(const QUrl &file);

Q_SIGNALS:
    /** The view opens the gallery. */
    void galleryRequested();
    void isPreparingChanged();

protected:
    /** Rows as (title, icon name) pairs. */
    OwnPicturePage(QList<std::pair<QString, QString>> rows, QObject *parent);

    [[nodiscard]] ContentCategoryPager *pager() const;
    [[nodiscard]] NavigationController *navigation() const;
    /** Gives the picked picture to the editor through the pager. */
    virtual void handBack(ContentCategoryPager &pager, const QImage &picture) = 0;

private:
    const QList<std::pair<QString, QString>> m_rows;
    bool m_preparing = false;
};
