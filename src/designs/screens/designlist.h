#pragma once

#include "json.h"
#include "objectid.h"

#include <QImage>
#include <QList>

#include <functional>
#include <memory>

class DesignStore;
class QObject;

/**
 * The saved designs as the list screens read them, newest first. Every row gives its id, but only a
 * row whose document reads gives a design: the two lists run out of step after an unreadable row, and
 * a cell's design and its id are then those of different rows, as the screens have always had them.
 */
struct DesignList
{
    QList<std::shared_ptr<Json>> itemsArray;
    QList<ObjectId> objectIdArr;

    [[nodiscard]] static DesignList load(DesignStore &store);

    /**
     * The design's preview picture: a file in Documents is read at once, a web address through the
     * picture cache. `done` gets a null picture when there is none; it is dropped when `context` has gone.
     */
    static void loadPreview(const Json &design, QObject *context, const std::function<void(const QImage &)> &done);
};
