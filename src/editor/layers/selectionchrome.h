#pragma once

class View;

/**
 * Views that only show the user what is selected or snapped (handles, borders, the dim background) are
 * marked, so that the exported picture leaves them out while the canvas on screen draws them.
 */
namespace SelectionChrome {
void mark(View *view);
[[nodiscard]] bool isChrome(const View *view);
} // namespace SelectionChrome
