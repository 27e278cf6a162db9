<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CapturePage</name>
    <message>
        <source>Secrets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forget secrets after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tokens, private keys and card numbers are shown masked, kept in memory only and never written to disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Never kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>60 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Treat as any text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Single words that look like keys, too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order and selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Newest first, always</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new copy goes to the top; the limit drops the oldest.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep texts exactly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spaces at the ends are kept, and make another clip.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep selected text, too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The primary selection, pasted with the middle mouse button.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show program and size in the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of what is copied from now on; also finds it by “app:firefox”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sizes only: this desktop does not show programs who copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Possible on X11 only.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ClipActions</name>
    <message>
        <source>Reveal while held</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hold to reveal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ClipList</name>
    <message>
        <source>Clipboard history</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ClipQuery</name>
    <message>
        <source>Nothing has “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing from this time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No link has “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No image has “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No color has “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No text has “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing matches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing from “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No files have “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ClipSheet</name>
    <message>
        <source>Edit clip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard the changes?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ClipboardTab</name>
    <message>
        <source>Search clipboard…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear clipboard history?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Older than a week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No clipboard history yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy anything with ⌘C and it shows up here.</source>
        <translation>Copy anything with Ctrl+C and it shows up here.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each line may run as a command.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ContextStatusLine</name>
    <message>
        <source>5h session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plan usage — updates while Claude Code is active</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CopyLastButton</name>
    <message>
        <source>Copy the last file added to the Shelf</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CustomMinutes</name>
    <message>
        <source>Custom minutes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CustomMinutesField</name>
    <message>
        <source>minutes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DropCard</name>
    <message>
        <source>Drop files here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Park them, then drag out or send with AirDrop</source>
        <translation>Park them, then drag out or send to a nearby device</translation>
    </message>
</context>
<context>
    <name>EncryptionStep</name>
    <message>
        <source>Plain files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Readable by your account, and from a copy of the disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encrypt, key in the keyring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens with your login, nothing to type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No keyring on this desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encrypt with a passphrase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asked for once per login; it cannot be recovered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encrypt what Ravelo keeps?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can change this later in the settings, under Storage.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExtensionStep</name>
    <message>
        <source>Turn on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log out and in once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One more thing on GNOME</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GNOME hides the clipboard and the top edge from programs. A small extension passes both on to Ravelo and stores nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The extension is running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GNOME loads new extensions only when a session begins. Until then Ravelo opens on its handle and by its icon.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FocusControl</name>
    <message>
        <source>Focus…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focus presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit presets…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start countdown</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>GNOME</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extension of GNOME Shell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without it, Ravelo does not see all copies, opens only on its handle, and closes when the pointer leaves it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start automatically at login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open by moving the mouse to the top-center. A live timer pins a small bar at the top while it runs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full black (for notch Macs)</source>
        <translation>Full black (for screens with a notch)</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 item stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 items stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPhone sync</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your data is saved locally on this Mac. Syncing to an iPhone app is the next phase — it needs an Apple Developer account and a companion iOS app.</source>
        <translation>Your data is saved locally on this computer. Syncing to an iPhone app is the next phase — it needs an Apple Developer account and a companion iOS app.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IgnoreSection</name>
    <message>
        <source>Ignore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies from these programs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop does not say which program copies.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts that match a pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try a text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type or paste…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeysPage</name>
    <message>
        <source>Paste at once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste one of the first nine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy one of the first nine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy one of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste one of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview, reveal a secret</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose several</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extend the choice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu of the clip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open from anywhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copying</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Return pastes at once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not possible on this desktop: it lets no program type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Into the window you came from. Shift+Return only copies.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Into the window you came from. Shift+Return always does.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join several clips with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line break</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy as plain text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit and copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permission to type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Return</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>key</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LockedPage</name>
    <message>
        <source>Unlock…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Passphrase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MacTypeStep</name>
    <message>
        <source>Detect automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>We found a notch on this display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>We found no notch on this display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MacBook with a notch</source>
        <translation>Screen with a notch</translation>
    </message>
    <message>
        <source>No notch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iMac, Mac mini, older MacBooks, external display</source>
        <translation>Most laptops, external displays</translation>
    </message>
    <message>
        <source>What kind of Mac do you have?</source>
        <translation>What kind of screen do you have?</translation>
    </message>
    <message>
        <source>This decides how the top timer bar is laid out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MorePage</name>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applies when Ravelo starts again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Claude Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide Claude Code where it is not installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its rows in the panel and its line in the tray tooltip.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show peak hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stay with one session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With several at work, the one that wrote last, until it has been quiet for a minute.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prefer what Claude Code reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From its status line, if that runs ravelo --store-usage.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its CLAUDE_CONFIG_DIR…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder of the second account</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NewPassphrase</name>
    <message>
        <source>Passphrase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The same again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encrypt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The two are not the same</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NotesTab</name>
    <message>
        <source>Sketch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sketch pad</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NoticeLine</name>
    <message>
        <source>Dismiss</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NotificationsSection</name>
    <message>
        <source>Notifications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The timer has ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop shows no notifications.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files have arrived</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving fails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plan at 80% and 95%, and its reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None while the screen is locked.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PatternRow</name>
    <message>
        <source>Add a pattern…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pattern %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove pattern %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PauseButton</name>
    <message>
        <source>until %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause for 15 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause for an hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause until resumed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignore the next copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>paused until %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capture paused — click to resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capture paused until %1 — click to resume</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PresetEditor</name>
    <message>
        <source>Focus presets</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PresetList</name>
    <message>
        <source>Add preset</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PresetRow</name>
    <message>
        <source>Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PreviewSurface</name>
    <message>
        <source>Image, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color, hex %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProgramTags</name>
    <message>
        <source>Remove %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a program</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QuestionContent</name>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReadOnlyText</name>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReceivedFiles</name>
    <message>
        <source>Received files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AirDrops land in your Downloads folder</source>
        <translation>Received files land in your Downloads folder</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Received by AirDrop</source>
        <translation>Received a file</translation>
    </message>
</context>
<context>
    <name>ReceivedRow</name>
    <message>
        <source>Add to shelf</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReminderItem</name>
    <message>
        <source>Remove %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReminderStrip</name>
    <message>
        <source>Reminders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a reminder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RowMenu</name>
    <message>
        <source>Clip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep as any text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forget now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Return</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste at once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy as plain text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+Return</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>key</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RunningTimer</name>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Filter: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete removes it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SecretRow</name>
    <message>
        <source>Unchecked text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secret, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secret, %1, ends in %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SelectionBar</name>
    <message>
        <source>%1 clips selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Storage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ravelo v0.2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Ravelo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShelfGrid</name>
    <message>
        <source>Shelf</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShelfHeader</name>
    <message>
        <source>drag any to move all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShelfTab</name>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add to shelf</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShelfTileView</name>
    <message>
        <source>No longer available</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShortcutField</name>
    <message>
        <source>Press the keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcut, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press the keys…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the shortcut</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SketchPad</name>
    <message>
        <source>Pen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy, or drag it out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sketch</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnippetSheet</name>
    <message>
        <source>Edit snippet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attach image from clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard the changes?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnippetStrip</name>
    <message>
        <source>Snippets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New snippet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snippet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete snippet?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Keep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A shorter limit applies from the next copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>60 clips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>200 clips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1,000 clips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forever</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>30 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>7 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>16 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>64 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>256 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pinned clips stay. When it is full, the oldest go first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>128 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>512 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 GB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encrypt what is stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From the keyring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Passphrase…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forget the key while the screen is locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clips, notes, snippets and images. Without the key nobody can read them, you included. Settings and reminders stay plain.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 snippet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 snippets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As a file to pass on, with their images. It is not encrypted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything on this computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History, notes, snippets, shelf and settings are removed from the disk at once, and Ravelo ends. Your files stay where they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase everything…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase everything on this computer?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no undo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear the last hour?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TitledPage</name>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ToastCapsule</name>
    <message>
        <source>%1. Undo with Control Z</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TooLargeText</name>
    <message>
        <source>%1 megapixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text of %1, the limit is %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image of %1, the limit is %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too large to keep · %1 of text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too large to keep · image of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 megapixels of 16 bits</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Shown under the notch — click to hide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hidden — click to show under the notch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide reminders under the notch?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show reminders under the notch?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turno da noite — apaga a tela em ~5s e trabalha no pendente</source>
        <translation>Night shift — turns the screen off in ~5 s and works on what is pending</translation>
    </message>
    <message>
        <source>Shut down the Mac</source>
        <translation>Shut down the computer</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shut down the Mac?</source>
        <translation>Shut down the computer?</translation>
    </message>
</context>
<context>
    <name>UpdateView</name>
    <message>
        <source>Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UsageRow</name>
    <message>
        <source>%1 has reset; %2 is from before the reset</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Welcome to Ravelo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clipboard, shelf, snippets and a focus timer — one hover away at the top of your screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Super+V is taken by another program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open it with Super+V, too</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::CaptureRules</name>
    <message>
        <source>A bracket is not closed, at character %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1%2, at character %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::ClipListModel</name>
    <message>
        <source>Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too large to keep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>forgotten in less than a minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>forgotten in 1 minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>forgotten in %1 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>forgotten %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in memory only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>just now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This expression takes too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn on “Show program and size in the list” to find programs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::ClipPasting</name>
    <message>
        <source>Shift+Return</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Return</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste a line break into the terminal?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste %1 line breaks into the terminal?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::ClipPreview</name>
    <message>
        <source>User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HSL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 character</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 lines, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not there any more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Document</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::Clips</name>
    <message>
        <source>Clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures cannot be joined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied %1 ✓</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History cleared · 1 clip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History cleared · %1 clips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too long to edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>joined by spaces, in this order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>joined by commas, in this order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>joined by nothing, in this order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>joined by line breaks, in this order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied %1 ✓ Pictures left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::DataLock</name>
    <message>
        <source>another Ravelo has taken over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its lock was removed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::Deleting</name>
    <message>
        <source>Deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restored ✓</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not undo: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restored %1 of %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::DesktopNotices</name>
    <message>
        <source>The timer has ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5 more minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file has arrived</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 files have arrived</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In your downloads folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving fails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The panel has the reason.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5h session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resets in %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::Encryption</name>
    <message>
        <source>Ravelo: key of the clipboard history</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That is not the passphrase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not enough memory to try the passphrase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The keyring did not keep the key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The keyring did not keep the key: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::ExtensionOffer</name>
    <message>
        <source>It is not installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The extension is older than Ravelo. Log out and in once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The extension is newer than Ravelo. Quit Ravelo and start it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is turned on. Log out and in once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is turned on. Quit Ravelo and start it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It could not be turned on. Turn extensions on in the Extensions app, or log out and in and try again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::FileChoice</name>
    <message>
        <source>Export snippets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import snippets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JSON files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::Files</name>
    <message>
        <source>the disk is full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder is read-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be removed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::Focus</name>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minutes are a whole number from 1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::IgnoreTrial</name>
    <message>
        <source>the first pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the second pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the third pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the fourth pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the fifth pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pattern %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Would be ignored, by %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Would stay in memory only: %1 takes too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Would be kept</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::LinkOpening</name>
    <message>
        <source>Not opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program opens %1 links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open with %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not there any more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program opens %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::NearbySend</name>
    <message>
        <source>Pair a device in KDE Connect, or install Blueman, to send files to it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::Notes</name>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::Notices</name>
    <message>
        <source>Not deleted from the disk:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This looks like a secret: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Such texts are never written to disk and soon forgotten.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep such texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not saved any more:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not saved for %1 minute:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not saved for %1 minutes:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. Nothing is lost while Ravelo runs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved copy put aside:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, in Ravelo’s data folder. The history starts empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences put aside:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. Settings are back at their defaults.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::OnboardingController</name>
    <message>
        <source>Ravelo Setup</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::PaceNotes</name>
    <message>
        <source>%1 min.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 h %2 min.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 before the reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lasts until the reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last day: +%1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last hour: +%1%</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::PaceText</name>
    <message>
        <source>at this pace full at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at this pace full on %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::PastePermission</name>
    <message>
        <source>You did not allow Ravelo to type, so it only copies.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Into the window you came from. The desktop asks you first whether to allow remote interaction.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only copies: the desktop did not answer when Ravelo asked for permission to type.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::Pausing</name>
    <message>
        <source>Paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capture resumed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next copy will be ignored</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::PeakText</name>
    <message>
        <source>PEAK · ends %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>h:mm Ap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OFF-PEAK · peak in %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::ReceivedModel</name>
    <message>
        <source>just now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::SecondPlan</name>
    <message>
        <source>No such folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That is the first account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No login there</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::SecretForm</name>
    <message>
        <source>OpenSSH private key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Private key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GitHub token</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GitLab token</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AWS key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slack token</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stripe key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anthropic key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OpenAI key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Google key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JSON Web Token</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key-like word</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::Sending</name>
    <message>
        <source>Could not send to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sent to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sent %1 of %2 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A folder cannot be sent, only files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders cannot be sent, only files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not send</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::SettingsWindow</name>
    <message>
        <source>1 snippet exported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 snippets exported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All of them are there already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 snippet imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 snippets imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ravelo Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On %1, also start ravelo from its configuration file.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::ShelfContents</name>
    <message>
        <source>%1 selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deselect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restored ✓</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::ShelfFiles</name>
    <message>
        <source>Shelf</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::ShortcutChoice</name>
    <message>
        <source>Letters and digits need Ctrl, Alt or Super.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Programs copy and paste with these keys. Press others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Escape cancels, Backspace clears.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click, then press the keys to open Ravelo with.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the desktop…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click, then press new keys to change it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The desktop has registered “%1”. Click, then press new keys to change it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The desktop has assigned no keys to it; another program may have them. Click, then press other keys, or choose some in the desktop’s settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taken by another program. Click, then press other keys.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not accepted. Click, then press other keys.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop lets no program take keys. Put this line into %1’s configuration:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop lets no program take keys. Set a key for this command in its keyboard settings:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::ShortcutsPortal</name>
    <message>
        <source>Open or close Ravelo</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::Sketch</name>
    <message>
        <source>The sketch is full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sketch cleared</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::SnippetFile</name>
    <message>
        <source>The file would have more than 16 MB. Snippets without their images need far less.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has more than 16 MB.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snippet %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no title.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its image is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged: it is no JSON from character %1 on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has no snippets of Ravelo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file was written by a newer Ravelo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no snippets in the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has more than 1,000 snippets.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image of “%1” is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was imported: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image of “%1” cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not exported: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::Snippets</name>
    <message>
        <source>Snippet deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 deleted</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::StatusItemController</name>
    <message>
        <source>Open Ravelo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Up Ravelo Again…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Ravelo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume Capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause Capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause for 15 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause for an hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause until resumed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capture paused until %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capture paused</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::StatusText</name>
    <message>
        <source>Last activity %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5h session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: 5h %2 · week %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::Store</name>
    <message>
        <source>too large to keep in memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the history was cleared</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what is stored was written by a newer Ravelo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what is stored is encrypted, and its key is gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what is stored was erased meanwhile</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::StoreNotices</name>
    <message>
        <source>New copies are sealed until then.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlock…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key stayed in memory while the screen was locked:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A copied image was not kept:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New copies are sealed until the passphrase is typed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::Toast</name>
    <message>
        <source>Copied ✓</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::Transfers</name>
    <message>
        <source>Another export or import is running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is stored is encrypted: unlock it first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not saved yet: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was imported: what is stored was locked or erased meanwhile.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::UpdateText</name>
    <message>
        <source>Cannot check for updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PackageKit is not available. Update Ravelo with your package manager.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ravelo was not installed from a repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>So the system does not know of newer versions. Install the newest package over this one, or build it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not allowed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permission was denied, or polkit, which grants it, is not running. Update Ravelo with your package manager.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ravelo is up to date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have Ravelo %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installing %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Ravelo and start it again to use it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::UpdateWindow</name>
    <message>
        <source>Ravelo Updates</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::Usage</name>
    <message>
        <source>read %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::UsageText</name>
    <message>
        <source>sem dados</source>
        <translation>no data</translation>
    </message>
    <message>
        <source>reseta em %1</source>
        <translation>resets in %1</translation>
    </message>
</context>
<context>
    <name>ravelo::VaultView</name>
    <message>
        <source>Waiting for the keyring…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No keyring answers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key is not in the keyring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your clips are encrypted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your clips were stored by a newer Ravelo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key file is missing or damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your clips are encrypted. They are back as soon as it is unlocked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ravelo’s key is kept there. Start it, or log in again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type the passphrase to open them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was overwritten.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ravelo::Wording</name>
    <message>
        <source>en</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
