#pragma once

/** What the export screen makes of a merged movie; `Merge` itself does not look at it. */
enum class ExportMediaType { GIF, Video };
