#pragma once

// What the tags view tells the screen it sits in. Optional: the default does nothing.
class TagsViewDelegate {
public:
    virtual ~TagsViewDelegate() = default;

    // The view grew or shrank by a row of chips (its top edge stays); the screen may relayout.
    virtual void tagsViewDidChangeFrame() {}
};
