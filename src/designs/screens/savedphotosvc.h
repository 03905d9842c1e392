#pragma once

#include "designlist.h"
#include "designstore.h"
#include "json.h"
#include "objectid.h"
#include "saveddesignsmodel.h"
#include "viewcontroller.h"

#include <QImage>
#include <QList>

#include <memory>
#include <optional>

class Storyboard;

/**
 * "My Story": the user's saved designs, newest first, after the cell that starts a blank design. A tap
 * opens a design again; a long press or a cell's more button opens the action sheet (SavedPhotosMoreVC
 * for pictures, SavedVideosMoreVC for videos), which hands its row and action word back to `didSelectAction`.
 * The list is read again each time it shows and whenever a design is saved or deleted anywhere.
 */
class SavedPhotosVC : public ViewController
{
    Q_OBJECT
    /** Cell 0 is the create-own cell; cell n is design n - 1. */
    Q_PROPERTY(SavedDesignsModel *items READ items CONSTANT)
    /** The empty state (its picture and its button) instead of the list. */
    Q_PROPERTY(bool noCardVisible READ noCardVisible NOTIFY listChanged)
public:
    static inline const QString reEditAction = QStringLiteral("ReEdit");
    static inline const QString previewAction = QStringLiteral("Preview");
    static inline const QString duplicateAction = QStringLiteral("Duplicate");
    static inline const QString deleteAction = QStringLiteral("Delete");
    static inline const QString shareAction = QStringLiteral("Share");
    static inline const QString printAction = QStringLiteral("Print");

    explicit SavedPhotosVC(QObject *parent = nullptr);

    void setStoryboard(const Storyboard *storyboard) { m_storyboard = storyboard; }

    /** The home tab this list is: 4; a swipe shows the tab before it. */
    int tabIndex = 4;
    /** The sheet's answer: the cell's row (design + 1) and the action word, each for one tap. */
    std::optional<int> selectedImage;
    std::optional<QString> action;
    /** The newest row when a duplicate was made. */
    std::optional<ObjectId> objectId;
    /** The row of the design being opened again. */
    int selectedIndex = 0;

    [[nodiscard]] SavedDesignsModel *items() const { return m_items; }
    [[nodiscard]] bool noCardVisible() const { return m_list.itemsArray.isEmpty(); }
    [[nodiscard]] const QList<std::shared_ptr<Json>> &itemsArray() const { return m_list.itemsArray; }
    [[nodiscard]] const QList<ObjectId> &objectIdArr() const { return m_list.objectIdArr; }

    void viewDidLoad() override;
    void viewWillAppear() override;
    /** Reads every design again. */
    void loadData();

    /** Cell 0 starts a blank design; any other opens its design again. */
    Q_INVOKABLE void didSelectItem(int item);
    /** A long press on cell `item`, or -1 outside any cell: the sheet of that design. */
    Q_INVOKABLE void longPressed(int item);
    /** The more button of a cell: the same sheet as a long press. */
    Q_INVOKABLE void moreClicked(int item);
    /** The empty state's button. */
    Q_INVOKABLE void noCardBtnClicked();
    /** A swipe towards the right: the tab before this one. */
    Q_INVOKABLE void swipedRight();

    /** The sheet's action entry: runs `action` on the design of `selectedImage`. */
    void didSelectAction();

    /**
     * The Duplicate action: a new row with a copy of the design's document, sharing its files. The new
     * row's id; nothing when no text could be made of the design or the store failed.
     */
    static std::optional<ObjectId> duplicateDesign(DesignStore &store, const Json &design);

Q_SIGNALS:
    void listChanged();

private:
    void openSheet(int item, bool longPress);
    void pictureBranch(int row, const std::shared_ptr<Json> &design, const QImage &picture);
    void videoBranch(int row, const std::shared_ptr<Json> &design);
    /** Delete, ReEdit and Duplicate, alike for pictures and videos; false for any other word. */
    bool commonBranch(const QString &word, int row, const std::shared_ptr<Json> &design);
    void confirmDelete(int row);
    void reEdit(int row, const std::shared_ptr<Json> &design);
    void showCreateOwn();
    /** The alert when `word` needs a preview the design lacks; true when it was shown. */
    bool previewMissing(const QString &word, const Json &design);

    const Storyboard *m_storyboard = nullptr;
    DesignStore m_store;
    DesignList m_list;
    SavedDesignsModel *const m_items;
    bool m_reloadPending = false;
    bool m_justLoaded = false;
};
