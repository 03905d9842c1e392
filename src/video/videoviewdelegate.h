#pragma once

class VideoView;

/** What a video view's owner is told: the editor writes the new source into the document's background. */
class VideoViewDelegate
{
public:
    virtual ~VideoViewDelegate() = default;
    /** The view now plays another movie, `view->url()`. */
    virtual void videoViewDidChangeVideo(VideoView *view) = 0;
};
