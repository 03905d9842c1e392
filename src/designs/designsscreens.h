#pragma once

class Storyboard;

/** The screens of the designs library that other screens open by name. */
namespace DesignsScreens {
void registerScreens(Storyboard &storyboard);
} // namespace DesignsScreens
