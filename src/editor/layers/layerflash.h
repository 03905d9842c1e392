#pragma once

class View;

/**
 * The flash of a layer made while a design loads: a light blue veil over the whole layer, fading out
 * over 0.85 seconds, to show the user what can be edited. It is no part of the design.
 */
namespace LayerFlash {
void flash(View *layer);
} // namespace LayerFlash
