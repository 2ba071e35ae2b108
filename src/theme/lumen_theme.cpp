#include "theme/lumen_theme.h"

#include <tk.h>
#include <ttkTheme.h>

namespace tcu {
namespace {

TTK_BEGIN_LAYOUT_TABLE(LumenLayoutTable)

TTK_LAYOUT("TCombobox",
    TTK_GROUP("rect", TTK_PACK_RIGHT | TTK_FILL_Y,
        TTK_NODE("Combobox.downarrow", TTK_PACK_RIGHT | TTK_FILL_Y))
    TTK_GROUP("Combobox.field", TTK_PACK_LEFT | TTK_FILL_BOTH | TTK_EXPAND,
        TTK_GROUP("Combobox.padding", TTK_FILL_BOTH,
            TTK_NODE("Combobox.textarea", TTK_FILL_BOTH))))

TTK_LAYOUT("Horizontal.Sash",
    TTK_GROUP("Sash.hsash", TTK_FILL_BOTH,
        TTK_NODE("Sash.hgrip", TTK_FILL_BOTH)))

TTK_LAYOUT("Vertical.Sash",
    TTK_GROUP("Sash.vsash", TTK_FILL_BOTH,
        TTK_NODE("Sash.vgrip", TTK_FILL_BOTH)))

TTK_END_LAYOUT_TABLE

// The word after the group that starts at word (a node, or a group with its
// children and end word).
const TTKLayoutInstruction* EndOfGroup(const TTKLayoutInstruction* word) {
    switch (word->opcode & (_TTK_CHILDREN | _TTK_LAYOUT_END)) {
    case _TTK_LAYOUT_END:
        return word + 1;
    case _TTK_CHILDREN:
        return EndOfGroup(EndOfGroup(word + 1));
    default:
        return EndOfGroup(word + 1);
    }
}

// Ttk 8.6 offers no stubs entry for registering a whole table: walk it and
// register each layout's content under the layout's name.
void RegisterLayoutTable(Ttk_Theme theme, const TTKLayoutInstruction* word) {
    while (!(word->opcode & _TTK_LAYOUT_END)) {
        Ttk_RegisterLayout(theme, word->elementName, const_cast<Ttk_LayoutSpec>(word + 1));
        word = EndOfGroup(word + 1);
    }
}

}  // namespace

int LumenTheme_Init(Tcl_Interp* interp) {
    if (Ttk_InitStubs(interp) == nullptr) return TCL_ERROR;
    Ttk_Theme theme = Ttk_CreateTheme(interp, "lumen", nullptr);
    if (theme == nullptr) return TCL_ERROR;
    RegisterLayoutTable(theme, LumenLayoutTable);
    Tcl_PkgProvide(interp, "ttk::theme::lumen", "8.5");
    return TCL_OK;
}

}  // namespace tcu
