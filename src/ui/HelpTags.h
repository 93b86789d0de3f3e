#pragma once

namespace tessarolyne {

class Window;

// Gives each control of the window its help tag, one sentence for those who see it for the first time: the
// text of its name with "_HT". What a control is given otherwise stands: a tag that tells a state or an
// address. Texts that only caption others, and frames, have none.
void ExplainControls(const Window& window);

} // namespace tessarolyne
