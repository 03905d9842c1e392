#pragma once

#include "createownvc.h"

class ServerClient;
class Storyboard;

/** The catalog, search and blank-start screens, registered with the storyboard and handed their services. */
namespace BrowseScreens {
void registerScreens(Storyboard &storyboard, ServerClient *client, CreateOwnVC::RatioSource ratios);
} // namespace BrowseScreens
