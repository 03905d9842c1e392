#include "appservices.h"

#include "appdelegate.h"
#include "apppaths.h"
#include "prefixurl.h"
#include "qffontpicker.h"
#include "serverclient.h"
#include "userdefaults.h"

namespace {

// The sub-category of the font catalogs on the content server.
constexpr qint64 fontSubCategory = 37;

} // namespace

AppServices::AppServices(const QString &serverOption, QObject *parent)
    : QObject(parent)
    , m_serverUrl(chooseServer(serverOption))
{
    const QUrl apiBase = ServerClient::apiBase(m_serverUrl);
    m_client = std::make_unique<ServerClient>(&m_network, apiBase);
    // The assets of templates read from the cache come from the server in use until an answer names another.
    PrefixUrl::set(PrefixUrl::forServer(m_serverUrl));

    FontpickerConnection fontSettings;
    fontSettings.sub_category_id = fontSubCategory;
    fontSettings.serverURL = apiBase;
    fontSettings.font_path = AppPaths::fonts();
    fontSettings.intPimaryColor = QColor(0xE0, 0x58, 0x63);
    fontSettings.barLeftGradientColor = fontSettings.intPimaryColor;
    fontSettings.barRightGradientColor = QColor(0xF0, 0x7C, 0x82);
    m_fontpicker = std::make_unique<QFFontpicker>(&m_network, fontSettings);
    m_fontpicker->start();
}

AppServices::~AppServices() = default;

QUrl AppServices::chooseServer(const QString &serverOption)
{
    if (!serverOption.isEmpty())
        return QUrl::fromUserInput(serverOption);
    if (const auto setting = UserDefaults::standard().string(DefaultsKey::serverUrl); setting && !setting->isEmpty())
        return QUrl::fromUserInput(*setting);
    return m_embedded.start();
}

void AppServices::attach(AppDelegate &delegate)
{
    delegate.setServerClient(m_client.get());
    connect(&delegate, &AppDelegate::networkResumed, m_fontpicker.get(), &QFFontpicker::networkResumed);
}
