#pragma once

/// What the parts of the colour dialog tell their parents, as the key of the message of a changed field.
enum ColorMessage {
    ColorChanged = 0,  ///< the colour of the page shown, or of the palette, is another one
    ColorToCustom = 1, ///< the same, and it is to be kept as a custom colour
    CustomChosen = 2,  ///< a custom colour was chosen
    RecentChosen = 3   ///< a colour that was used lately was chosen
};
