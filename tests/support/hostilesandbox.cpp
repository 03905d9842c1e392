#include "hostilesandbox.h"

#include "apppaths.h"
#include "hostilenames.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

HostileSandbox::HostileSandbox()
    : m_home(m_root.filePath(QStringLiteral("a/b/c/d/home")))
    , m_outside(m_root.filePath(QStringLiteral("outside")))
    , m_previous(qgetenv("QUILLET_HOME"))
{
    QDir().mkpath(m_home);
    QDir().mkpath(m_outside);
    qputenv("QUILLET_HOME", m_home.toUtf8());
    AppPaths::ensureCreated();
}

HostileSandbox::~HostileSandbox()
{
    if (m_previous.isEmpty())
        qunsetenv("QUILLET_HOME");
    else
        qputenv("QUILLET_HOME", m_previous);
}

void HostileSandbox::plant(const QString &extension, const QByteArray &bytes) const
{
    for (std::size_t n = 0; n < HostileNames::count(); ++n) {
        QFile file(QDir(m_outside).filePath(QStringLiteral("escape%1").arg(n) + extension));
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
    }
}

QStringList HostileSandbox::strayFiles() const
{
    QStringList stray;
    QDirIterator it(m_root.path(), QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString file = it.next();
        if (!file.startsWith(m_home + QLatin1Char('/')) && !file.startsWith(m_outside + QLatin1Char('/')))
            stray.append(file);
    }
    return stray;
}
