#pragma once

#include "photoalbum.h"

#include <QString>

class EditorSession;
class Storyboard;

/** The editors and the screens they open by name. */
namespace EditorScreens {
/** `album` is where "SaveImageVC" and "SaveVideoVC" put the results. */
void registerScreens(Storyboard &storyboard, const PhotoAlbum &album = PhotoAlbum(QStringLiteral("Quillet")));
/** A new editor of that class name, with no screen; null for a name that names no editor of this build. */
[[nodiscard]] EditorSession *makeEditor(const QString &className);
} // namespace EditorScreens
