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

private:
    QTemporaryDir m_dir;
    QByteArray m_previous;
};
