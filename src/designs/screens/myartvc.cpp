#include "myartvc.h"

#include "alertmodel.h"
#include "imagedecoder.h"
#include "navigationcontroller.h"
#include "panelmodel.h"
#include "previewwriter.h"

#include <QPointer>
#include <QtConcurrent/QtConcurrentRun>

MyArtVC::MyArtVC(QObject *parent)
    : OwnStickerPicker(parent)
    , m_items(new ArtListModel(this))
{
    setTitle(QStringLiteral("MY ARTS"));
    connect(&m_import, &QFutureWatcherBase::started, this, &MyArtVC::importingChanged);
    connect(&m_import, &QFutureWatcherBase::finished, this, [this] {
        // Back on the GUI thread: the store is written here only.
        int added = 0;
        for (const QString &name : m_import.result()) {
            if (const std::optional<LogoImage> art = m_store.saveLogo(name)) {
                m_logoArray.append(*art);
                m_items->append(*art);
                ++added;
            }
        }
        Q_EMIT importingChanged();
        Q_EMIT logosChanged();
        Q_EMIT artsAdded(added);
    });
}

void MyArtVC::viewWillAppear()
{
    loadData();
}

void MyArtVC::loadData()
{
    m_logoArray = m_store.allLogos();
    m_items->reset(m_logoArray);
    Q_EMIT logosChanged();
}

void MyArtVC::didSelectItem(int item)
{
    if (item == 0) {
        Q_EMIT galleryRequested();
        return;
    }
    if (item < 1 || item > m_logoArray.size())
        return;
    selectedIndex = item;
    handOver(ImageDecoder::decodeFile(ArtListModel::fileOf(m_logoArray.at(item - 1))));
}

void MyArtVC::addArts(const QList<QUrl> &files)
{
    if (files.isEmpty() || m_import.isRunning())
        return;
    QStringList paths;
    for (const QUrl &file : files)
        paths.append(file.isLocalFile() ? file.toLocalFile() : file.toString());
    // Decoding and writing run off the GUI thread; each picture gets a file name of its own time.
    m_import.setFuture(QtConcurrent::run([paths] {
        QStringList names;
        for (const QString &path : paths) {
            const QImage picture = ImageDecoder::decodeFile(path);
            if (const QString name = picture.isNull() ? QString() : PreviewWriter::write(picture); !name.isEmpty())
                names.append(name);
        }
        return names;
    }));
}

void MyArtVC::longPressed(int item)
{
    NavigationController *navigation = navigationController();
    if (item < 1 || item > m_logoArray.size() || !navigation)
        return;
    auto *alert = new AlertModel(tr("Confirm"), tr("Are you sure you want to delete this image?"));
    alert->addAction(tr("Cancel"), AlertModel::Style::Cancel);
    alert->addAction(tr("DELETE"), AlertModel::Style::Destructive, [screen = QPointer(this), item] {
        if (screen)
            screen->deleteArt(item - 1);
    });
    navigation->presentAlert(alert);
}

void MyArtVC::deleteArt(int index)
{
    if (index >= m_logoArray.size())
        return;
    NavigationController *navigation = navigationController();
    auto *panel = navigation ? new PanelModel(tr("Loading...")) : nullptr;
    if (panel)
        navigation->presentPanel(panel);
    m_store.deleteLogo(m_logoArray.at(index).objectID);
    if (panel)
        navigation->dismissPanel(panel);
    m_logoArray.removeAt(index);
    m_items->remove(index);
    if (m_logoArray.isEmpty())
        loadData();
    else
        Q_EMIT logosChanged();
}
