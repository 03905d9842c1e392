#pragma once

#include "ownpicturepage.h"

/** "Pick your own" of the sticker pager: one row, "Choose Image", behind the sheet "Choose Image From". */
class AddStickerVC : public OwnPicturePage
{
    Q_OBJECT
public:
    explicit AddStickerVC(QObject *parent = nullptr);

    void selectRow(int row) override;

protected:
    void handBack(ContentCategoryPager &pager, const QImage &picture) override;
};
