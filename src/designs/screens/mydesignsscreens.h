#pragma once

class Storyboard;

/** The screens of the user's own work: the saved designs with their sheets, and the editor's two pickers. */
namespace MyDesignsScreens {
void registerScreens(Storyboard &storyboard);
} // namespace MyDesignsScreens
