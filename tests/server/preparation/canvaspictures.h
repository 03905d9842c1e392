#pragma once

#include "activityindicatorview.h"
#include "imageview.h"
#include "resizabletextview.h"

#include <QImage>
#include <QList>

#include <algorithm>

/** Every picture a canvas holds below `view`: image views and the patterns of texts. */
inline QList<QImage> picturesOf(const View *view)
{
    QList<QImage> pictures;
    if (const auto *image = qobject_cast<const ImageView *>(view))
        pictures.append(image->image());
    if (const auto *text = qobject_cast<const ResizableTextView *>(view); text && text->patternColor)
        pictures.append(*text->patternColor);
    for (const View *child : view->subviews())
        pictures += picturesOf(child);
    return pictures;
}

/** Whether some layer below `view` still shows the indicator of a picture on its way. */
inline bool pictureOnItsWay(const View *view)
{
    return qobject_cast<const ActivityIndicatorView *>(view)
        || std::any_of(view->subviews().cbegin(), view->subviews().cend(), pictureOnItsWay);
}
