#pragma once

#include "json.h"
#include "objectid.h"
#include "viewcontroller.h"

#include <QPointer>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class EditorSession;
class QFFontpicker;
class ServerClient;
class Storyboard;
struct TextJson;

/**
 * What the three preview screens share: between a tapped card and the editor, the full template is
 * fetched (or read from its cache), its missing fonts fetched and registered, its pictures preloaded
 * into the image cache, and only then is Edit enabled. A retry starts again from the top; results of an
 * earlier run are dropped.
 */
class TemplateSample : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    Q_PROPERTY(bool spinnerRunning READ spinnerRunning NOTIFY stateChanged)
    /** The veil over the preview: gone only when ready. */
    Q_PROPERTY(bool veilVisible READ veilVisible NOTIFY stateChanged)
    Q_PROPERTY(bool editEnabled READ editEnabled NOTIFY stateChanged)
    /** Retry and its icon. */
    Q_PROPERTY(bool retryVisible READ retryVisible NOTIFY stateChanged)
    /** The preview picture as an image source ("image://cache/…", "image://assets/…", "file:…"). */
    Q_PROPERTY(QString previewSource READ previewSource NOTIFY previewChanged)
    /** Width over height of the design, for fitting the preview; 0 when unknown. */
    Q_PROPERTY(qreal previewAspect READ previewAspect NOTIFY previewChanged)
public:
    enum class State { Loading, Ready, Failed };
    Q_ENUM(State)

    explicit TemplateSample(QObject *parent = nullptr);

    /** On entry the tapped card; once ready, the prepared document. */
    std::shared_ptr<Json> contentJson;
    /** The document as fetched. */
    std::shared_ptr<Json> resultJson;
    /** A saved design to open again, with its row in the store. */
    std::shared_ptr<Json> reEditJson;
    std::optional<ObjectId> objectId;
    /** "Portrait", or "Landscape" when the caller saw a card wider than high. */
    QString deviceOrientation = QStringLiteral("Portrait");

    void setServices(ServerClient *client, QFFontpicker *fontpicker, const Storyboard *storyboard);

    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] bool spinnerRunning() const { return m_state == State::Loading; }
    [[nodiscard]] bool veilVisible() const { return m_state != State::Ready; }
    [[nodiscard]] bool editEnabled() const { return m_state == State::Ready; }
    [[nodiscard]] bool retryVisible() const { return m_state == State::Failed; }
    [[nodiscard]] QString previewSource() const { return m_previewSource; }
    [[nodiscard]] qreal previewAspect() const { return m_previewAspect; }

    /** Pictures preloaded and failed in the present run. */
    [[nodiscard]] int preloadSuccesses() const { return m_preloadSuccesses; }
    [[nodiscard]] int preloadFailures() const { return m_preloadFailures; }
    /** The pictures of the present run, in preload order. */
    [[nodiscard]] QStringList resourceNames() const { return m_resourceNames; }
    /** Font downloads started in the present run. */
    [[nodiscard]] int fontDownloads() const { return m_fontDownloads; }

    /** "Landscape" for a card wider than high, else "Portrait". */
    [[nodiscard]] static QString orientationFor(const Json &card);

    void viewDidLoad() override;
    /** With no connection the offline alert, else the whole load again. */
    Q_INVOKABLE void reTryClicked();
    Q_INVOKABLE void cancelClicked();
    /** Edit: opens the editor with the prepared document. */
    Q_INVOKABLE void editClicked();

Q_SIGNALS:
    void stateChanged();
    void previewChanged();

protected:
    /** The load of the screen, from the top. */
    virtual void load();
    /** Makes `resultJson` a complete local document. */
    virtual void prepare() = 0;
    virtual void open() = 0;

    /** Starts a new run in the loading state; results of earlier runs are dropped from now on. */
    void beginRun();
    void setState(State state);
    void setPreview(const QString &source, qreal aspect);
    [[nodiscard]] bool isCurrent(quint64 run) const { return run == m_run; }
    [[nodiscard]] quint64 run() const { return m_run; }
    [[nodiscard]] QString apiBase() const;
    [[nodiscard]] bool offline() const;
    void showOfflineAlert();

    /** Steps shared by image and video: the missing fonts, then `next`; a failure ends in the failed state. */
    void resolveFonts(std::function<void()> next);
    /**
     * Starts every picture at once; `allLoaded` when each has arrived, the failed state at the first failure
     * (and at any later result while one has failed).
     */
    void preload(const QStringList &names, std::function<void()> allLoaded);
    /** Pushes the editor of that identifier with the prepared documents; false when none is registered. */
    bool pushEditor(const QString &identifier, const std::function<void(EditorSession &editor)> &prepareEditor = {});

    QPointer<ServerClient> m_client;
    QPointer<QFFontpicker> m_fontpicker;
    const Storyboard *m_storyboard = nullptr;

private:
    void loadNewDesign();
    void loadReEdit();
    void getJsonData(qint64 jsonId);
    void readCache(qint64 jsonId);
    void checkSavedFonts();
    void fetchMissingFonts(const QList<std::shared_ptr<TextJson>> &texts,
        const QList<std::shared_ptr<TextJson>> &missing, std::function<void()> next);

    State m_state = State::Loading;
    QString m_previewSource;
    qreal m_previewAspect = 0;
    quint64 m_run = 0;
    int m_preloadSuccesses = 0;
    int m_preloadFailures = 0;
    int m_fontDownloads = 0;
    QStringList m_resourceNames;
};
