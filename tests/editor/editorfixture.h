#pragma once

#include "designstore.h"
#include "editimageportraitmode.h"
#include "mapper.h"
#include "testhome.h"
#include "view.h"

#include <QDir>
#include <QImage>

#include <cstdio>
#include <memory>

/**
 * An editor on a 360 by 640 canvas in a fresh home, storing into the home's real designs store.
 * `picture` writes a PNG into resource/ that templates can name.
 */
struct EditorFixture
{
    EditorFixture()
    {
        editor.setDesignStore(&store);
        editor.setCanvasArea(QRectF(0, 0, 360, 640));
        editor.screenSize = QSizeF(360, 640);
    }

    QString picture(const QString &name, QColor color = Qt::red, QSize size = { 40, 40 }) const
    {
        QDir().mkpath(home.filePath(QStringLiteral("resource")));
        QImage image(size, QImage::Format_ARGB32);
        image.fill(color);
        QString path = home.filePath(QStringLiteral("resource/") + name);
        image.save(path);
        return path;
    }

    bool open(const char *json) { return editor.loadTemplate(Mapper::map<Json>(QString::fromUtf8(json))); }

    /** The layers of the canvas of one kind, back to front. */
    template<class Layer> QList<Layer *> layers() const
    {
        QList<Layer *> found;
        for (View *view : editor.viewMain->subviews()) {
            if (auto *layer = qobject_cast<Layer *>(view))
                found.append(layer);
        }
        return found;
    }

    TestHome home;
    DesignStore store;
    EditImagePortraitMode editor;
};
