#include "extendedpack.h"

#include <fstream>

ExtendedPack::ExtendedPack()
    : m_root(m_dir.path().toStdString())
{
    namespace fs = std::filesystem;
    const fs::path pack = ContentServer::defaultContentDir();
    for (const auto &entry : fs::directory_iterator(pack)) {
        if (entry.path().filename() == "templates")
            continue;
        fs::create_symlink(entry.path(), m_root / entry.path().filename());
    }
    fs::create_directory(m_root / "templates");
    for (const auto &entry : fs::directory_iterator(pack / "templates"))
        fs::create_symlink(entry.path(), m_root / "templates" / entry.path().filename());
    m_server.setAccessLog(qEnvironmentVariableIsSet("QUILLET_SERVER_LOG"));
}

void ExtendedPack::addTemplate(const nlohmann::json &document)
{
    const auto file = m_root / "templates" / (std::to_string(document.at("json_id").get<long long>()) + ".json");
    std::filesystem::remove(file);
    std::ofstream(file) << document.dump(2);
}

bool ExtendedPack::start()
{
    return m_server.start(m_root) != 0;
}
