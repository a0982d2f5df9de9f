#pragma once

#include "platform/widget.h"

namespace quill::platform {

/// Images by key, for the widgets that show one. A renderer resolves a key to a picture of its
/// own; the model holds the keys only, in order.
class ImageList : public Widget {
public:
    explicit ImageList(const Design& design = {}) : Widget(design) { Visible = false; }
    ImageList(Widget& container, const Design& design = {}) : Widget(container, design)
    {
        Visible = false;
    }

    [[nodiscard]] const char* TypeName() const override { return "ImageList"; }

    [[nodiscard]] const std::vector<std::string>& Keys() const noexcept { return mKeys; }
    void                                          Add(std::string key)
    {
        mKeys.push_back(std::move(key));
        notify({WidgetChange::What::reset});
    }
    /// The place of a key, from 0; failure 5 for a key that is not in the list.
    [[nodiscard]] int index(const std::string& key) const;
    /// The key of the first image, empty for none.
    [[nodiscard]] std::string first() const { return mKeys.empty() ? std::string{} : mKeys[0]; }

private:
    std::vector<std::string> mKeys;
};

/// An area that shows an image by key.
class Image : public Widget {
public:
    explicit Image(const Design& design = {}) : Widget(design), Picture(*this) {}
    Image(Widget& container, const Design& design = {}) : Widget(container, design), Picture(*this)
    {
        TabStop = false;
    }

    Property<std::string> Picture; ///< key of an image, empty for none
    Event<>               Click;

    [[nodiscard]] const char* TypeName() const override { return "Image"; }
    void                      visit(PropertyVisitor& visitor) override
    {
        Widget::visit(visitor);
        visitor.visit("Picture", Picture);
    }

    /// User's door.
    UserDoor click()
    {
        if (!acceptsUser()) {
            return UserDoor::refused;
        }
        Click.raise();
        return UserDoor::done;
    }
};

/// An image that may hold other widgets.
class PictureBox : public Image {
public:
    using Image::Image;
    [[nodiscard]] const char* TypeName() const override { return "PictureBox"; }
};

} // namespace quill::platform
