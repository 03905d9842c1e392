#pragma once

#include "photoalbum.h"

class Storyboard;

/** The editors and the screens they open by name. */
namespace EditorScreens {
/** `album` is where "SaveImageVC" and "SaveVideoVC" put the results. */
void registerScreens(Storyboard &storyboard, const PhotoAlbum &album = PhotoAlbum(QStringLiteral("Quillet")));
} // namespace EditorScreens
