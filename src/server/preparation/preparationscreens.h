#pragma once

class QFFontpicker;
class ServerClient;
class Storyboard;

/** The three preview screens, registered with the storyboard and handed the services they use. */
namespace PreparationScreens {
void registerScreens(Storyboard &storyboard, ServerClient *client, QFFontpicker *fontpicker);
} // namespace PreparationScreens
