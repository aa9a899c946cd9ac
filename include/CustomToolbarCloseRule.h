#pragma once

// Which fly-outs a tool bar closes. It stands apart from CustomToolbar because the host services
// name it and have no use for the tool bar itself; the class offers it as CustomToolbar::CLOSERULE,
// an alias for this type. The values are the host's, who completes the enumeration.
enum CUSTOMTOOLBAR_CLOSERULE : int;
