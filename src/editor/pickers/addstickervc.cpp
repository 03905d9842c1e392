#include "addstickervc.h"

#include "alertmodel.h"
#include "contentcategorypager.h"
#include "navigationcontroller.h"
#include "pickertarget.h"

#include <QPointer>

AddStickerVC::AddStickerVC(QObject *parent)
    : OwnPicturePage({ { QStringLiteral("Choose Image"), QStringLiteral("bg_album") } }, parent)
{
    setTitle(QStringLiteral("Pick your own"));
}

void AddStickerVC::selectRow(int row)
{
    NavigationController *stack = navigation();
    if (row != 0 || !stack)
        return;
    auto *sheet = new AlertModel(QStringLiteral("Choose Image From"), QString(), true);
    sheet->addAction(QStringLiteral("Choose Image"), AlertModel::Style::Default, [page = QPointer<AddStickerVC>(this)] {
        if (page)
            Q_EMIT page->galleryRequested();
    });
    sheet->addAction(QStringLiteral("Cancel"), AlertModel::Style::Cancel);
    stack->presentAlert(sheet);
}

void AddStickerVC::handBack(ContentCategoryPager &pager, const QImage &picture)
{
    PickedSticker sticker;
    sticker.newStickerImage = picture;
    sticker.isStickerChange = pager.vcTag == 1;
    // The user's own picture keeps its colours.
    sticker.newStickerHasColor = true;
    sticker.selected_sticker_id = pager.categoryId;
    pager.handBack([&](PickerTarget &target) { target.setNewStickerImage(sticker); });
}
