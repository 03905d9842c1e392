#pragma once

class Storyboard;

/** The picture sheet, its camera screen and the crop screen, registered with the storyboard. */
namespace CropScreens {
void registerScreens(Storyboard &storyboard);
} // namespace CropScreens
