#pragma once

class Storyboard;

/** The video subsystem's screens, registered with the storyboard. */
namespace VideoScreens {
void registerScreens(Storyboard &storyboard);
} // namespace VideoScreens
