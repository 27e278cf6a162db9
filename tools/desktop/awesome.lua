-- The default configuration, without its bar, which would hide the checks' own. A bar stays where
-- it puts itself: the default rule moves it below the room that it reserves.
dofile("/etc/xdg/awesome/rc.lua")
local awful = require("awful")
awful.screen.connect_for_each_screen(function(screen)
    screen.mywibox.visible = false
end)
table.insert(awful.rules.rules, {
    rule = { type = "dock" },
    properties = { placement = function() end, border_width = 0 },
})
