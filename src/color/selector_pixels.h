// Pixels of the colour selector's two pictures: the hue/saturation field and
// the lightness bar. Both fill tight RGBA buffers, rows top to bottom, opaque.
#pragma once

#include <cstdint>

#include "color/arrow_image.h"
#include "color/color_values.h"

namespace tcu {

enum class SelectorSizing {
    Keep,      // draw at the photo's size
    Default,   // an empty dimension: draw at 240 x 240 (size updated)
    TooLarge,  // the RGBA buffer would reach 2^31 bytes
};

// Decides the picture size for a photo of size.width x size.height.
SelectorSizing ChooseSelectorSize(PictureSize& size);

// Hue grows from 0 at the left to 1 at the right, saturation from 0 at the
// bottom to 1 at the top; lightness 0.5. A dimension of 1 makes the step
// infinite and the coordinates NaN, which the colour maths turns into black
// or grey exactly as HslToRgb would.
void DrawSelectorField(std::uint8_t* rgba, int width, int height);

// Every row is HslToRgb(hue, saturation, l) with l from 0 at the bottom to 1
// at the top; colour.lightness is not used.
void DrawLightnessBar(std::uint8_t* rgba, int width, int height, HslColor colour);

}  // namespace tcu
