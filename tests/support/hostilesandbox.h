#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/**
 * A home for a test against a hostile server: nested four folders deep in a temporary folder, so that any
 * "../" a name carries stays inside it, with a folder "outside" beside the nesting that the server's
 * absolute names point into. Sets QUILLET_HOME for its lifetime.
 */
class HostileSandbox
{
public:
    HostileSandbox();
    ~HostileSandbox();
    HostileSandbox(const HostileSandbox &) = delete;
    HostileSandbox &operator=(const HostileSandbox &) = delete;

    [[nodiscard]] QString home() const { return m_home; }
    /** Where the server's absolute and "file:" names point. */
    [[nodiscard]] QString outside() const { return m_outside; }
    /** Puts the file of every hostile name with this extension ("escape<n>.png") into `outside()`. */
    void plant(const QString &extension, const QByteArray &bytes) const;
    /** Every file of the sandbox that is neither in the home nor planted: what a name wrote outside the home. */
    [[nodiscard]] QStringList strayFiles() const;

private:
    QTemporaryDir m_root;
    QString m_home;
    QString m_outside;
    QByteArray m_previous;
};
