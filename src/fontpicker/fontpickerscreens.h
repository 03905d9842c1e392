#pragma once

class QFFontpicker;
class Storyboard;

/** The font library's screens, registered with the storyboard and handed the one library. */
namespace FontpickerScreens {
void registerScreens(Storyboard &storyboard, QFFontpicker *fontpicker);
} // namespace FontpickerScreens
