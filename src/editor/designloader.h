#pragma once

#include "json.h"

#include <QImage>
#include <QRectF>

#include <memory>
#include <optional>

class EditorSession;

/**
 * Opens a design in the editor: fits the canvas to the design's shape in the work area and makes the
 * layers of the document in a fixed order, which is also their stacking. A template's records are in
 * template units and degrees and become canvas points and radians; a stored design's are kept as
 * they are. The history starts with the document as it then stands.
 */
class DesignLoader
{
public:
    explicit DesignLoader(EditorSession &session);

    /** Opens a template. False, with the reason in the session, if it is refused. */
    bool loadTemplate(const std::shared_ptr<Json> &document);
    /** Opens a stored design. False, with the reason in the session, if it is refused. */
    bool loadReEdit(const std::shared_ptr<Json> &document);
    /** The document of a bare picture: its size, the picture as background and preview, no layers. */
    [[nodiscard]] static std::shared_ptr<Json> documentForPicture(const QImage &picture);

    /** Sizes the canvas to the design's shape inside the work area and centres it there. */
    void fitCanvas(std::optional<double> width, std::optional<double> height);
    /** A template rectangle in canvas points; absent fields count as 0. */
    [[nodiscard]] QRectF convertRect(std::optional<double> x, std::optional<double> y, std::optional<double> width,
        std::optional<double> height) const;
    /** A template height (also a font size) in canvas points. */
    [[nodiscard]] qreal convertHeight(std::optional<double> height) const;

private:
    bool load(const std::shared_ptr<Json> &document, bool reEdit);
    bool refuseNullFlags(const Json &document);
    template<class Kind> void loadSlots(bool reEdit);
    void loadFrame(bool reEdit);
    void loadStickers(bool reEdit);
    void loadTexts(bool reEdit);
    /** A slot's picture also becomes the background of a picture-in-picture design. */
    void useSlotPicture(const std::optional<QImage> &selected, const std::optional<QString> &name);
    [[nodiscard]] QString resolveName(const QString &name) const;

    EditorSession &m_session;
};
