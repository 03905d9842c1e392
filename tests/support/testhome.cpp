#include "testhome.h"

#include "apppaths.h"

#include <QFile>

TestHome::TestHome()
    : m_previous(qgetenv("QUILLET_HOME"))
{
    qputenv("QUILLET_HOME", m_dir.path().toUtf8());
    AppPaths::ensureCreated();
}

TestHome::~TestHome()
{
    if (m_previous.isEmpty())
        qunsetenv("QUILLET_HOME");
    else
        qputenv("QUILLET_HOME", m_previous);
}

QString TestHome::write(const QString &relative, const QByteArray &content) const
{
    const QString path = filePath(relative);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(content);
    return path;
}
