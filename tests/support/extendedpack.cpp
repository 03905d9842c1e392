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

void ExtendedPack::addAsset(const std::string &relative, const QByteArray &bytes)
{
    namespace fs = std::filesystem;
    const fs::path file = m_root / relative;
    const fs::path folder = file.parent_path();
    // A folder linked to the pack's becomes a folder of links, so that files can join it here.
    if (fs::is_symlink(folder)) {
        const fs::path linked = fs::read_symlink(folder);
        fs::remove(folder);
        fs::create_directory(folder);
        for (const auto &entry : fs::directory_iterator(linked))
            fs::create_symlink(entry.path(), folder / entry.path().filename());
    }
    fs::create_directories(folder);
    std::ofstream(file, std::ios::binary).write(bytes.constData(), bytes.size());
}

bool ExtendedPack::start()
{
    return m_server.start(m_root) != 0;
}
