#include "designstorechanges.h"

DesignStoreChanges &DesignStoreChanges::shared()
{
    static auto *changes = new DesignStoreChanges();
    return *changes;
}
