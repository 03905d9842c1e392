#pragma once

#include <QStringList>

class ServerClient;
class Storyboard;

/** The background and sticker pickers and their pages, registered with the storyboard. */
namespace PickerScreens {
/** `bgColors`: the colour strip of the background's own page, as hexadecimal texts. */
void registerScreens(Storyboard &storyboard, ServerClient *client, const QStringList &bgColors);
} // namespace PickerScreens
