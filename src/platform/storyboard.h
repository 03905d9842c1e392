#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>

class ViewController;

/**
 * Makes a screen's controller from its identifier, which is the controller's class name, and names the
 * QML view that draws it. Each subsystem registers its screens once at start.
 */
class Storyboard
{
public:
    using Factory = std::function<ViewController *()>;

    /** Registers `T` under `identifier`, drawn by `viewUrl`. */
    template<class T> void registerScreen(const QString &identifier, const QUrl &viewUrl)
    {
        registerFactory(identifier, viewUrl, [] { return new T(); });
    }
    void registerFactory(const QString &identifier, const QUrl &viewUrl, Factory factory);

    /** A new controller for the identifier, or null when none is registered. The caller owns it. */
    [[nodiscard]] ViewController *instantiate(const QString &identifier) const;
    [[nodiscard]] bool contains(const QString &identifier) const { return m_entries.contains(identifier); }
    /** Every registered identifier, sorted. */
    [[nodiscard]] QStringList identifiers() const;

private:
    struct Entry
    {
        QUrl viewUrl;
        Factory factory;
    };
    QHash<QString, Entry> m_entries;
};
