#pragma once

#include "designlist.h"
#include "designstore.h"
#include "ownstickerpicker.h"
#include "saveddesignsmodel.h"

/** "MY DESIGNS": the saved designs, newest first; a tapped design's preview becomes a sticker below. */
class MyDesignVC : public OwnStickerPicker
{
    Q_OBJECT
    /** One cell per design, without the create-own cell. */
    Q_PROPERTY(SavedDesignsModel *items READ items CONSTANT)
public:
    explicit MyDesignVC(QObject *parent = nullptr);

    int selectedIndex = 0;

    [[nodiscard]] SavedDesignsModel *items() const { return m_items; }
    [[nodiscard]] const QList<std::shared_ptr<Json>> &itemsArray() const { return m_list.itemsArray; }
    [[nodiscard]] const QList<ObjectId> &objectIdArr() const { return m_list.objectIdArr; }

    void viewWillAppear() override;
    Q_INVOKABLE void didSelectItem(int item);

private:
    void loadData();

    DesignStore m_store;
    DesignList m_list;
    SavedDesignsModel *const m_items;
};
