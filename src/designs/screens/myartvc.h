#pragma once

#include "artlistmodel.h"
#include "designstore.h"
#include "ownstickerpicker.h"

#include <QFutureWatcher>
#include <QList>
#include <QUrl>

/**
 * "MY ARTS": pictures the user imported, each kept as a file in Documents and a row of the store. The add
 * cell imports one or more pictures; a tapped art becomes a sticker below; a long press deletes its row.
 */
class MyArtVC : public OwnStickerPicker
{
    Q_OBJECT
    /** Cell 0 adds arts; cell n is art n - 1. */
    Q_PROPERTY(ArtListModel *items READ items CONSTANT)
    /** The empty state over the list. */
    Q_PROPERTY(bool noDataVisible READ noDataVisible NOTIFY logosChanged)
    /** Pictures are being written. */
    Q_PROPERTY(bool isImporting READ isImporting NOTIFY importingChanged)
public:
    explicit MyArtVC(QObject *parent = nullptr);

    int selectedIndex = 0;

    [[nodiscard]] ArtListModel *items() const { return m_items; }
    [[nodiscard]] const QList<LogoImage> &logoArray() const { return m_logoArray; }
    [[nodiscard]] bool noDataVisible() const { return m_logoArray.isEmpty(); }
    [[nodiscard]] bool isImporting() const { return m_import.isRunning(); }

    void viewWillAppear() override;
    /** Cell 0 asks the view for the gallery; an art's cell hands the art over. */
    Q_INVOKABLE void didSelectItem(int item);
    /** The pictures chosen in the gallery: each is written as an art and stored, then the list shows them. */
    Q_INVOKABLE void addArts(const QList<QUrl> &files);
    /** A long press on an art's cell: the confirmation, then its row goes (its file stays). */
    Q_INVOKABLE void longPressed(int item);

Q_SIGNALS:
    void logosChanged();
    void importingChanged();
    /** The view opens the gallery for one or more pictures. */
    void galleryRequested();
    /** Every picture chosen has been imported (or failed to). */
    void artsAdded(int count);

private:
    void loadData();
    void deleteArt(int index);

    DesignStore m_store;
    QList<LogoImage> m_logoArray;
    ArtListModel *const m_items;
    QFutureWatcher<QStringList> m_import;
};
