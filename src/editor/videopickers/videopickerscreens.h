#pragma once

class ServerClient;
class Storyboard;

/** The pickers of background videos, registered with the storyboard. */
namespace VideoPickerScreens {
void registerScreens(Storyboard &storyboard, ServerClient *client);
} // namespace VideoPickerScreens
