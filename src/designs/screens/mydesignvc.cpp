#include "mydesignvc.h"

MyDesignVC::MyDesignVC(QObject *parent)
    : OwnStickerPicker(parent)
    , m_items(new SavedDesignsModel(false, this))
{
    setTitle(QStringLiteral("MY DESIGNS"));
}

void MyDesignVC::viewWillAppear()
{
    loadData();
}

void MyDesignVC::loadData()
{
    m_list = DesignList::load(m_store);
    m_items->reset(m_list.itemsArray);
}

void MyDesignVC::didSelectItem(int item)
{
    if (item < 0 || item >= m_list.itemsArray.size())
        return;
    selectedIndex = item;
    DesignList::loadPreview(*m_list.itemsArray.at(item), this, [this](const QImage &picture) { handOver(picture); });
}
