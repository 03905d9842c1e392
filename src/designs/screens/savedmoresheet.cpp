#include "savedmoresheet.h"

#include "navigationcontroller.h"
#include "savedphotosmorevc.h"
#include "savedphotosvc.h"
#include "savedvideosmorevc.h"

SavedMoreSheet::SavedMoreSheet(QObject *parent)
    : ViewController(parent)
{ }

void SavedMoreSheet::reEditBtnClick()
{
    choose(SavedPhotosVC::reEditAction);
}

void SavedMoreSheet::previewBtnClick()
{
    choose(SavedPhotosVC::previewAction);
}

void SavedMoreSheet::duplicateBtnClick()
{
    choose(SavedPhotosVC::duplicateAction);
}

void SavedMoreSheet::deleteBtnClick()
{
    choose(SavedPhotosVC::deleteAction);
}

void SavedMoreSheet::shareBtnClick()
{
    choose(SavedPhotosVC::shareAction);
}

void SavedMoreSheet::cancelBtnClick()
{
    if (NavigationController *navigation = navigationController())
        navigation->dismiss();
}

QList<SavedPhotosVC *> SavedMoreSheet::listeners() const
{
    return delegate ? QList<SavedPhotosVC *> { delegate.data() } : QList<SavedPhotosVC *> {};
}

void SavedMoreSheet::choose(const QString &word)
{
    // Read before the dismissal: it deletes the sheet later, and the lists act once it is gone.
    QList<QPointer<SavedPhotosVC>> told;
    for (SavedPhotosVC *list : listeners())
        told.append(list);
    const std::optional<int> row = selectedImage;
    if (NavigationController *navigation = navigationController())
        navigation->dismiss();
    for (const QPointer<SavedPhotosVC> &list : told) {
        if (!list)
            continue;
        list->selectedImage = row;
        list->action = word;
        list->didSelectAction();
    }
}

SavedPhotosMoreVC::SavedPhotosMoreVC(QObject *parent)
    : SavedMoreSheet(parent)
{ }

void SavedPhotosMoreVC::printBtnClick()
{
    choose(SavedPhotosVC::printAction);
}

QList<SavedPhotosVC *> SavedPhotosMoreVC::listeners() const
{
    QList<SavedPhotosVC *> told = SavedMoreSheet::listeners();
    if (superVC)
        told.append(superVC.data());
    return told;
}

SavedVideosMoreVC::SavedVideosMoreVC(QObject *parent)
    : SavedMoreSheet(parent)
{ }
