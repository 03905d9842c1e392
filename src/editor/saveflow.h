#pragma once

#include <QFuture>
#include <QImage>
#include <QList>
#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

class BorderedResizableImageView;
class DesignStore;
class EditorSession;

/**
 * How the editor stores its design: the automatic save after every step, and the user's save, which
 * draws the canvas and writes its previews. Leaving with changes and the SAVE button both go through
 * the canvas preparation here and `saveDesign`.
 */
class SaveFlow : public QObject
{
    Q_OBJECT
public:
    explicit SaveFlow(EditorSession &session);
    /** Waits for preview files still being written. */
    ~SaveFlow() override;

    /** The store that the saves write; without one the default store is opened at the first save. */
    void setDesignStore(DesignStore *store);

    /**
     * The canvas drawn at the design's own size (twice that for HD), without selection, handles or the
     * placeholders of empty outlined slots; transparent where the design is. Null without a size.
     */
    QImage render(bool isHD);
    /**
     * The first steps of a drawing: nothing selected, no handles or slot borders, empty outlined slots
     * hidden, a clear canvas. Gives the size of the picture to draw.
     */
    QSize prepareCanvas(bool isHD);
    /** The last step of a drawing: the hidden outlined slots come back. */
    void restoreCanvas();
    /**
     * The user's save: the picture and a smaller one are written as previews (off the GUI thread), then
     * the document is stored without deltas, its stickers in stacking order, marked saved. `done` runs
     * on the GUI thread once the design is stored.
     */
    void saveDesign(const QImage &image, std::function<void()> done = {});
    /** After every recorded step: the document as an edit in progress. */
    void automaticSave();
    /** The store that the saves write. */
    [[nodiscard]] DesignStore &store();

private:
    EditorSession &m_session;
    DesignStore *m_store = nullptr;
    std::unique_ptr<DesignStore> m_ownStore;
    QFuture<void> m_previewWrite;
    QList<QPointer<BorderedResizableImageView>> m_hiddenSlots;
};
