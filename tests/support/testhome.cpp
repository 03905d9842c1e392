#include "testhome.h"

#include "apppaths.h"

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
