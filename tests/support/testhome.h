#pragma once

#include <QString>
#include <QTemporaryDir>

/** A fresh application home (QUILLET_HOME) for one test, removed when the test ends. */
class TestHome
{
public:
    TestHome();
    ~TestHome();
    TestHome(const TestHome &) = delete;
    TestHome &operator=(const TestHome &) = delete;

    [[nodiscard]] QString path() const { return m_dir.path(); }
    /** A path below the home. */
    [[nodiscard]] QString filePath(const QString &relative) const { return m_dir.filePath(relative); }
    /** Writes `content` to a file below the home; its path. */
    QString write(const QString &relative, const QByteArray &content) const;

private:
    QTemporaryDir m_dir;
    QByteArray m_previous;
};
