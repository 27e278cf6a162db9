<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CapturePage</name>
    <message>
        <source>Secrets</source>
        <translation>Geheimnisse</translation>
    </message>
    <message>
        <source>Forget secrets after</source>
        <translation>Geheimnisse vergessen nach</translation>
    </message>
    <message>
        <source>Tokens, private keys and card numbers are shown masked, kept in memory only and never written to disk.</source>
        <translation>Tokens, private Schlüssel und Kartennummern werden verdeckt angezeigt, nur im Speicher gehalten und nie auf die Festplatte geschrieben.</translation>
    </message>
    <message>
        <source>Never kept</source>
        <translation>Nie behalten</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 Minute</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10 Minuten</translation>
    </message>
    <message>
        <source>60 minutes</source>
        <translation>60 Minuten</translation>
    </message>
    <message>
        <source>Treat as any text</source>
        <translation>Wie jeden Text behandeln</translation>
    </message>
    <message>
        <source>Single words that look like keys, too</source>
        <translation>Auch einzelne Wörter, die wie Schlüssel aussehen</translation>
    </message>
    <message>
        <source>Order and selection</source>
        <translation>Reihenfolge und Auswahl</translation>
    </message>
    <message>
        <source>Newest first, always</source>
        <translation>Immer das Neueste zuerst</translation>
    </message>
    <message>
        <source>A new copy goes to the top; the limit drops the oldest.</source>
        <translation>Eine neue Kopie kommt nach oben; die Obergrenze verdrängt die älteste.</translation>
    </message>
    <message>
        <source>Keep texts exactly</source>
        <translation>Texte unverändert behalten</translation>
    </message>
    <message>
        <source>Spaces at the ends are kept, and make another clip.</source>
        <translation>Leerzeichen am Anfang und Ende bleiben und ergeben einen eigenen Eintrag.</translation>
    </message>
    <message>
        <source>Keep selected text, too</source>
        <translation>Auch markierten Text behalten</translation>
    </message>
    <message>
        <source>The primary selection, pasted with the middle mouse button.</source>
        <translation>Die primäre Auswahl, die mit der mittleren Maustaste eingefügt wird.</translation>
    </message>
    <message>
        <source>Show program and size in the list</source>
        <translation>Programm und Größe in der Liste zeigen</translation>
    </message>
    <message>
        <source>Of what is copied from now on; also finds it by “app:firefox”.</source>
        <translation>Für alles, was ab jetzt kopiert wird; auch mit „app:firefox“ zu finden.</translation>
    </message>
    <message>
        <source>Sizes only: this desktop does not show programs who copied.</source>
        <translation>Nur Größen: Dieser Desktop zeigt Programmen nicht, wer kopiert hat.</translation>
    </message>
    <message>
        <source>Possible on X11 only.</source>
        <translation>Nur unter X11 möglich.</translation>
    </message>
</context>
<context>
    <name>ClipActions</name>
    <message>
        <source>Reveal while held</source>
        <translation>Zeigen, solange gedrückt</translation>
    </message>
    <message>
        <source>Hold to reveal</source>
        <translation>Zum Anzeigen gedrückt halten</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Loslösen</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Anheften</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>ClipList</name>
    <message>
        <source>Clipboard history</source>
        <translation>Verlauf der Zwischenablage</translation>
    </message>
</context>
<context>
    <name>ClipQuery</name>
    <message>
        <source>Nothing has “%1”</source>
        <translation>Nirgends kommt „%1“ vor</translation>
    </message>
    <message>
        <source>Nothing from this time</source>
        <translation>Nichts aus dieser Zeit</translation>
    </message>
    <message>
        <source>No link has “%1”.</source>
        <translation>Kein Link enthält „%1“.</translation>
    </message>
    <message>
        <source>No links</source>
        <translation>Keine Links</translation>
    </message>
    <message>
        <source>No image has “%1”.</source>
        <translation>Kein Bild enthält „%1“.</translation>
    </message>
    <message>
        <source>No images</source>
        <translation>Keine Bilder</translation>
    </message>
    <message>
        <source>No color has “%1”.</source>
        <translation>Keine Farbe enthält „%1“.</translation>
    </message>
    <message>
        <source>No colors</source>
        <translation>Keine Farben</translation>
    </message>
    <message>
        <source>No text has “%1”.</source>
        <translation>Kein Text enthält „%1“.</translation>
    </message>
    <message>
        <source>No texts</source>
        <translation>Keine Texte</translation>
    </message>
    <message>
        <source>Nothing matches</source>
        <translation>Kein Treffer</translation>
    </message>
    <message>
        <source>Nothing from “%1”</source>
        <translation>Nichts aus „%1“</translation>
    </message>
    <message>
        <source>No files have “%1”.</source>
        <translation>Keine Datei enthält „%1“.</translation>
    </message>
    <message>
        <source>No files</source>
        <translation>Keine Dateien</translation>
    </message>
</context>
<context>
    <name>ClipSheet</name>
    <message>
        <source>Edit clip</source>
        <translation>Eintrag bearbeiten</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Discard the changes?</source>
        <translation>Änderungen verwerfen?</translation>
    </message>
</context>
<context>
    <name>ClipboardTab</name>
    <message>
        <source>Search clipboard…</source>
        <translation>Zwischenablage durchsuchen…</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Verlauf löschen</translation>
    </message>
    <message>
        <source>Clear clipboard history?</source>
        <translation>Verlauf der Zwischenablage löschen?</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Older than a week</source>
        <translation>Älter als 7 Tage</translation>
    </message>
    <message>
        <source>No clipboard history yet</source>
        <translation>Noch kein Verlauf der Zwischenablage</translation>
    </message>
    <message>
        <source>Copy anything with ⌘C and it shows up here.</source>
        <translation>Kopiere etwas mit Strg+C, dann erscheint es hier.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Each line may run as a command.</source>
        <translation>Jede Zeile kann als Befehl ausgeführt werden.</translation>
    </message>
</context>
<context>
    <name>ContextStatusLine</name>
    <message>
        <source>5h session</source>
        <translation>5-Std.-Sitzung</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>Plan usage — updates while Claude Code is active</source>
        <translation>Verbrauch des Tarifs — aktualisiert, solange Claude Code läuft</translation>
    </message>
</context>
<context>
    <name>CopyLastButton</name>
    <message>
        <source>Copy the last file added to the Shelf</source>
        <translation>Die zuletzt abgelegte Datei kopieren</translation>
    </message>
</context>
<context>
    <name>CustomMinutes</name>
    <message>
        <source>Custom minutes</source>
        <translation>Eigene Minutenzahl</translation>
    </message>
</context>
<context>
    <name>CustomMinutesField</name>
    <message>
        <source>minutes</source>
        <translation>Minuten</translation>
    </message>
</context>
<context>
    <name>DropCard</name>
    <message>
        <source>Drop files here</source>
        <translation>Dateien hier ablegen</translation>
    </message>
    <message>
        <source>Park them, then drag out or send with AirDrop</source>
        <translation>Parken, dann herausziehen oder an ein Gerät senden</translation>
    </message>
</context>
<context>
    <name>EncryptionStep</name>
    <message>
        <source>Plain files</source>
        <translation>Einfache Dateien</translation>
    </message>
    <message>
        <source>Readable by your account, and from a copy of the disk</source>
        <translation>Lesbar für dein Konto und in einer Kopie der Festplatte</translation>
    </message>
    <message>
        <source>Encrypt, key in the keyring</source>
        <translation>Verschlüsseln, Schlüssel im Schlüsselbund</translation>
    </message>
    <message>
        <source>Opens with your login, nothing to type</source>
        <translation>Öffnet sich mit der Anmeldung, ohne Eingabe</translation>
    </message>
    <message>
        <source>No keyring on this desktop</source>
        <translation>Dieser Desktop hat keinen Schlüsselbund</translation>
    </message>
    <message>
        <source>Encrypt with a passphrase</source>
        <translation>Mit einer Passphrase verschlüsseln</translation>
    </message>
    <message>
        <source>Asked for once per login; it cannot be recovered</source>
        <translation>Einmal je Anmeldung gefragt; nicht wiederherstellbar</translation>
    </message>
    <message>
        <source>Encrypt what Ravelo keeps?</source>
        <translation>Soll Ravelo verschlüsseln, was es behält?</translation>
    </message>
    <message>
        <source>You can change this later in the settings, under Storage.</source>
        <translation>Das lässt sich später in den Einstellungen unter „Speicher“ ändern.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>ExtensionStep</name>
    <message>
        <source>Turn on</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Log out and in once</source>
        <translation>Einmal ab- und anmelden</translation>
    </message>
    <message>
        <source>One more thing on GNOME</source>
        <translation>Noch etwas unter GNOME</translation>
    </message>
    <message>
        <source>GNOME hides the clipboard and the top edge from programs. A small extension passes both on to Ravelo and stores nothing.</source>
        <translation>GNOME verbirgt die Zwischenablage und den oberen Rand vor Programmen. Eine kleine Erweiterung reicht beides an Ravelo weiter und speichert nichts.</translation>
    </message>
    <message>
        <source>The extension is running.</source>
        <translation>Die Erweiterung läuft.</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Jetzt nicht</translation>
    </message>
    <message>
        <source>GNOME loads new extensions only when a session begins. Until then Ravelo opens on its handle and by its icon.</source>
        <translation>GNOME lädt neue Erweiterungen nur, wenn eine Sitzung beginnt. Bis dahin öffnet sich Ravelo an seinem Griff und über sein Symbol.</translation>
    </message>
</context>
<context>
    <name>FocusControl</name>
    <message>
        <source>Focus…</source>
        <translation>Fokus…</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Fokus</translation>
    </message>
    <message>
        <source>Focus presets</source>
        <translation>Fokus-Vorlagen</translation>
    </message>
    <message>
        <source>Edit presets…</source>
        <translation>Vorlagen bearbeiten…</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 Min.</translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>Eigene…</translation>
    </message>
    <message>
        <source>Start countdown</source>
        <translation>Countdown starten</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>GNOME</source>
        <translation>GNOME</translation>
    </message>
    <message>
        <source>Extension of GNOME Shell</source>
        <translation>Erweiterung für die GNOME-Shell</translation>
    </message>
    <message>
        <source>Without it, Ravelo does not see all copies, opens only on its handle, and closes when the pointer leaves it.</source>
        <translation>Ohne sie sieht Ravelo nicht alle Kopien, öffnet sich nur am Griff und schließt sich, wenn der Mauszeiger es verlässt.</translation>
    </message>
    <message>
        <source>Turn on</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Start automatically at login</source>
        <translation>Beim Anmelden automatisch starten</translation>
    </message>
    <message>
        <source>Open by moving the mouse to the top-center. A live timer pins a small bar at the top while it runs.</source>
        <translation>Öffnet sich, wenn der Mauszeiger oben in die Mitte kommt. Ein laufender Timer zeigt dort eine kleine Leiste.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Full black (for notch Macs)</source>
        <translation>Ganz schwarz (für Bildschirme mit Notch)</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation>Dunkelheit</translation>
    </message>
    <message>
        <source>Width: %1</source>
        <translation>Breite: %1</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <source>1 item stored</source>
        <translation>1 Eintrag gespeichert</translation>
    </message>
    <message>
        <source>%1 items stored</source>
        <translation>%1 Einträge gespeichert</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Verlauf löschen</translation>
    </message>
    <message>
        <source>iPhone sync</source>
        <translation>iPhone-Abgleich</translation>
    </message>
    <message>
        <source>Your data is saved locally on this Mac. Syncing to an iPhone app is the next phase — it needs an Apple Developer account and a companion iOS app.</source>
        <translation>Deine Daten liegen nur auf diesem Computer. Der Abgleich mit einer iPhone-App ist der nächste Schritt — er braucht ein Apple-Entwicklerkonto und eine zugehörige iOS-App.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
</context>
<context>
    <name>IgnoreSection</name>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Copies from these programs</source>
        <translation>Kopien aus diesen Programmen</translation>
    </message>
    <message>
        <source>This desktop does not say which program copies.</source>
        <translation>Dieser Desktop verrät nicht, welches Programm kopiert.</translation>
    </message>
    <message>
        <source>Texts that match a pattern</source>
        <translation>Texte, auf die ein Muster passt</translation>
    </message>
    <message>
        <source>Try a text</source>
        <translation>Einen Text ausprobieren</translation>
    </message>
    <message>
        <source>Type or paste…</source>
        <translation>Tippen oder einfügen…</translation>
    </message>
</context>
<context>
    <name>KeysPage</name>
    <message>
        <source>Paste at once</source>
        <translation>Sofort einfügen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste one of the first nine</source>
        <translation>Einen der ersten neun einfügen</translation>
    </message>
    <message>
        <source>Copy one of the first nine</source>
        <translation>Einen der ersten neun kopieren</translation>
    </message>
    <message>
        <source>Copy one of them</source>
        <translation>Einen davon kopieren</translation>
    </message>
    <message>
        <source>Paste one of them</source>
        <translation>Einen davon einfügen</translation>
    </message>
    <message>
        <source>Preview, reveal a secret</source>
        <translation>Vorschau, Geheimnis zeigen</translation>
    </message>
    <message>
        <source>Open a link</source>
        <translation>Link öffnen</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Anheften</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Choose several</source>
        <translation>Mehrere auswählen</translation>
    </message>
    <message>
        <source>Extend the choice</source>
        <translation>Auswahl erweitern</translation>
    </message>
    <message>
        <source>Menu of the clip</source>
        <translation>Menü des Eintrags</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation>Nächster Tab</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Open from anywhere</source>
        <translation>Von überall öffnen</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Kürzel</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Return pastes at once</source>
        <translation>Eingabe fügt sofort ein</translation>
    </message>
    <message>
        <source>Not possible on this desktop: it lets no program type.</source>
        <translation>Auf diesem Desktop nicht möglich: Er lässt kein Programm tippen.</translation>
    </message>
    <message>
        <source>Into the window you came from. Shift+Return only copies.</source>
        <translation>In das Fenster, aus dem du kommst. Umschalt+Eingabe kopiert nur.</translation>
    </message>
    <message>
        <source>Into the window you came from. Shift+Return always does.</source>
        <translation>In das Fenster, aus dem du kommst. Umschalt+Eingabe tut das immer.</translation>
    </message>
    <message>
        <source>Join several clips with</source>
        <translation>Mehrere verbinden mit</translation>
    </message>
    <message>
        <source>Line break</source>
        <translation>Zeilenumbruch</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>In the panel</source>
        <translation>Im Panel</translation>
    </message>
    <message>
        <source>Copy as plain text</source>
        <translation>Als reinen Text kopieren</translation>
    </message>
    <message>
        <source>Edit and copy</source>
        <translation>Bearbeiten und kopieren</translation>
    </message>
    <message>
        <source>Permission to type</source>
        <translation>Erlaubnis zum Tippen</translation>
    </message>
    <message>
        <source>Ask Again</source>
        <translation>Wieder fragen</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>key</comment>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Ab</translation>
    </message>
</context>
<context>
    <name>LockedPage</name>
    <message>
        <source>Unlock…</source>
        <translation>Entsperren…</translation>
    </message>
    <message>
        <source>Passphrase</source>
        <translation>Passphrase</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
</context>
<context>
    <name>MacTypeStep</name>
    <message>
        <source>Detect automatically</source>
        <translation>Automatisch erkennen</translation>
    </message>
    <message>
        <source>We found a notch on this display</source>
        <translation>An diesem Bildschirm wurde eine Notch gefunden</translation>
    </message>
    <message>
        <source>We found no notch on this display</source>
        <translation>An diesem Bildschirm wurde keine Notch gefunden</translation>
    </message>
    <message>
        <source>MacBook with a notch</source>
        <translation>Bildschirm mit Notch</translation>
    </message>
    <message>
        <source>No notch</source>
        <translation>Keine Notch</translation>
    </message>
    <message>
        <source>iMac, Mac mini, older MacBooks, external display</source>
        <translation>Die meisten Notebooks, externe Bildschirme</translation>
    </message>
    <message>
        <source>What kind of Mac do you have?</source>
        <translation>Was für einen Bildschirm hast du?</translation>
    </message>
    <message>
        <source>This decides how the top timer bar is laid out.</source>
        <translation>Danach richtet sich die Timer-Leiste am oberen Rand.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>MorePage</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Applies when Ravelo starts again.</source>
        <translation>Gilt ab dem nächsten Start von Ravelo.</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>Wie es ist</translation>
    </message>
    <message>
        <source>Claude Code</source>
        <translation>Claude Code</translation>
    </message>
    <message>
        <source>Hide Claude Code where it is not installed</source>
        <translation>Claude Code ausblenden, wo es nicht installiert ist</translation>
    </message>
    <message>
        <source>Its rows in the panel and its line in the tray tooltip.</source>
        <translation>Seine Zeilen im Panel und im Tooltip des Symbols.</translation>
    </message>
    <message>
        <source>Show peak hours</source>
        <translation>Spitzenzeit zeigen</translation>
    </message>
    <message>
        <source>Stay with one session</source>
        <translation>Bei einer Sitzung bleiben</translation>
    </message>
    <message>
        <source>With several at work, the one that wrote last, until it has been quiet for a minute.</source>
        <translation>Bei mehreren aktiven die, die zuletzt geschrieben hat, bis sie eine Minute lang ruht.</translation>
    </message>
    <message>
        <source>Prefer what Claude Code reports</source>
        <translation>Angaben von Claude Code bevorzugen</translation>
    </message>
    <message>
        <source>From its status line, if that runs ravelo --store-usage.</source>
        <translation>Aus seiner Statuszeile, wenn sie ravelo --store-usage ausführt.</translation>
    </message>
    <message>
        <source>Second account</source>
        <translation>Zweites Konto</translation>
    </message>
    <message>
        <source>Its CLAUDE_CONFIG_DIR…</source>
        <translation>Sein CLAUDE_CONFIG_DIR…</translation>
    </message>
    <message>
        <source>Folder of the second account</source>
        <translation>Ordner des zweiten Kontos</translation>
    </message>
</context>
<context>
    <name>NewPassphrase</name>
    <message>
        <source>Passphrase</source>
        <translation>Passphrase</translation>
    </message>
    <message>
        <source>The same again</source>
        <translation>Noch einmal</translation>
    </message>
    <message>
        <source>Encrypt</source>
        <translation>Verschlüsseln</translation>
    </message>
    <message>
        <source>The two are not the same</source>
        <translation>Die beiden stimmen nicht überein</translation>
    </message>
</context>
<context>
    <name>NotesTab</name>
    <message>
        <source>Sketch</source>
        <translation>Skizze</translation>
    </message>
    <message>
        <source>Second note</source>
        <translation>Zweite Notiz</translation>
    </message>
    <message>
        <source>Quick note</source>
        <translation>Schnelle Notiz</translation>
    </message>
    <message>
        <source>Sketch pad</source>
        <translation>Skizzenblock</translation>
    </message>
</context>
<context>
    <name>NoticeLine</name>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>NotificationsSection</name>
    <message>
        <source>Notifications</source>
        <translation>Benachrichtigungen</translation>
    </message>
    <message>
        <source>The timer has ended</source>
        <translation>Timer abgelaufen</translation>
    </message>
    <message>
        <source>This desktop shows no notifications.</source>
        <translation>Dieser Desktop zeigt keine Benachrichtigungen.</translation>
    </message>
    <message>
        <source>Files have arrived</source>
        <translation>Dateien angekommen</translation>
    </message>
    <message>
        <source>Saving fails</source>
        <translation>Speicherfehler</translation>
    </message>
    <message>
        <source>Plan at 80% and 95%, and its reset</source>
        <translation>Tarif bei 80% und 95% und sein Reset</translation>
    </message>
    <message>
        <source>None while the screen is locked.</source>
        <translation>Keine, solange der Bildschirm gesperrt ist.</translation>
    </message>
</context>
<context>
    <name>PatternRow</name>
    <message>
        <source>Add a pattern…</source>
        <translation>Muster hinzufügen…</translation>
    </message>
    <message>
        <source>Pattern %1</source>
        <translation>Muster %1</translation>
    </message>
    <message>
        <source>Remove pattern %1</source>
        <translation>Muster %1 entfernen</translation>
    </message>
</context>
<context>
    <name>PauseButton</name>
    <message>
        <source>until %1</source>
        <translation>bis %1</translation>
    </message>
    <message>
        <source>Pause for 15 minutes</source>
        <translation>15 Minuten pausieren</translation>
    </message>
    <message>
        <source>Pause for an hour</source>
        <translation>Eine Stunde pausieren</translation>
    </message>
    <message>
        <source>Pause until resumed</source>
        <translation>Pausieren, bis fortgesetzt wird</translation>
    </message>
    <message>
        <source>Resume capture</source>
        <translation>Erfassung fortsetzen</translation>
    </message>
    <message>
        <source>Ignore the next copy</source>
        <translation>Die nächste Kopie ignorieren</translation>
    </message>
    <message>
        <source>Pause capture</source>
        <translation>Erfassung pausieren</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>pausiert</translation>
    </message>
    <message>
        <source>paused until %1</source>
        <translation>pausiert bis %1</translation>
    </message>
    <message>
        <source>Capture paused — click to resume</source>
        <translation>Erfassung pausiert — zum Fortsetzen klicken</translation>
    </message>
    <message>
        <source>Capture paused until %1 — click to resume</source>
        <translation>Erfassung pausiert bis %1 — zum Fortsetzen klicken</translation>
    </message>
</context>
<context>
    <name>PresetEditor</name>
    <message>
        <source>Focus presets</source>
        <translation>Fokus-Vorlagen</translation>
    </message>
</context>
<context>
    <name>PresetList</name>
    <message>
        <source>Add preset</source>
        <translation>Vorlage hinzufügen</translation>
    </message>
</context>
<context>
    <name>PresetRow</name>
    <message>
        <source>Preset</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>PreviewSurface</name>
    <message>
        <source>Image, %1</source>
        <translation>Bild, %1</translation>
    </message>
    <message>
        <source>Color, hex %1</source>
        <translation>Farbe, hexadezimal %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>ProgramTags</name>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Neu…</translation>
    </message>
    <message>
        <source>Add a program</source>
        <translation>Programm hinzufügen</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
</context>
<context>
    <name>QuestionContent</name>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>ReadOnlyText</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>ReceivedFiles</name>
    <message>
        <source>Received files</source>
        <translation>Empfangene Dateien</translation>
    </message>
    <message>
        <source>AirDrops land in your Downloads folder</source>
        <translation>Empfangenes liegt im Ordner „Downloads“</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Received by AirDrop</source>
        <translation>Datei empfangen</translation>
    </message>
</context>
<context>
    <name>ReceivedRow</name>
    <message>
        <source>Add to shelf</source>
        <translation>In die Ablage</translation>
    </message>
</context>
<context>
    <name>ReminderItem</name>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>ReminderStrip</name>
    <message>
        <source>Reminders</source>
        <translation>Erinnerungen</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Neu…</translation>
    </message>
    <message>
        <source>Add a reminder</source>
        <translation>Erinnerung hinzufügen</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Erinnerung</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>RowMenu</name>
    <message>
        <source>Clip</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>%1 kopieren</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Keep as any text</source>
        <translation>Als normalen Text behalten</translation>
    </message>
    <message>
        <source>Forget now</source>
        <translation>Jetzt vergessen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Ctrl+Return</source>
        <translation>Strg+Eingabe</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Loslösen</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Anheften</translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation>Strg+P</translation>
    </message>
    <message>
        <source>Paste at once</source>
        <translation>Sofort einfügen</translation>
    </message>
    <message>
        <source>Copy as plain text</source>
        <translation>Nur den Text kopieren</translation>
    </message>
    <message>
        <source>Alt+Return</source>
        <translation>Alt+Eingabe</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Bearbeiten…</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>key</comment>
        <translation>Entf</translation>
    </message>
</context>
<context>
    <name>RunningTimer</name>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Filter: %1</source>
        <translation>Filter: %1</translation>
    </message>
    <message>
        <source>Delete removes it</source>
        <translation>„Entf“ entfernt ihn</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
</context>
<context>
    <name>SecretRow</name>
    <message>
        <source>Unchecked text</source>
        <translation>Ungeprüfter Text</translation>
    </message>
    <message>
        <source>1 line</source>
        <translation>1 Zeile</translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>Secret, %1</source>
        <translation>Geheimnis, %1</translation>
    </message>
    <message>
        <source>Secret, %1, ends in %2</source>
        <translation>Geheimnis, %1, endet auf %2</translation>
    </message>
</context>
<context>
    <name>SelectionBar</name>
    <message>
        <source>%1 clips selected</source>
        <translation>%1 Einträge ausgewählt</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>%1 ausgewählt</translation>
    </message>
    <message>
        <source>Clear selection</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>%1 kopieren</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Erfassung</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>Einstellungsseiten</translation>
    </message>
    <message>
        <source>Ravelo v0.2</source>
        <translation>Ravelo v0.2</translation>
    </message>
    <message>
        <source>Quit Ravelo</source>
        <translation>Ravelo beenden</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
</context>
<context>
    <name>ShelfGrid</name>
    <message>
        <source>Shelf</source>
        <translation>Ablage</translation>
    </message>
</context>
<context>
    <name>ShelfHeader</name>
    <message>
        <source>drag any to move all</source>
        <translation>eine ziehen bewegt alle</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Senden an</translation>
    </message>
</context>
<context>
    <name>ShelfTab</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Add to shelf</source>
        <translation>In die Ablage</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>ShelfTileView</name>
    <message>
        <source>No longer available</source>
        <translation>Nicht mehr verfügbar</translation>
    </message>
</context>
<context>
    <name>ShortcutField</name>
    <message>
        <source>Press the keys</source>
        <translation>Tasten drücken</translation>
    </message>
    <message>
        <source>Shortcut, %1</source>
        <translation>Tastenkürzel, %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keines</translation>
    </message>
    <message>
        <source>Press the keys…</source>
        <translation>Tasten drücken…</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keines</translation>
    </message>
    <message>
        <source>Remove the shortcut</source>
        <translation>Tastenkürzel entfernen</translation>
    </message>
</context>
<context>
    <name>SketchPad</name>
    <message>
        <source>Pen</source>
        <translation>Stift</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Radierer</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Copy, or drag it out</source>
        <translation>Kopieren oder herausziehen</translation>
    </message>
    <message>
        <source>Sketch</source>
        <translation>Skizze</translation>
    </message>
</context>
<context>
    <name>SnippetSheet</name>
    <message>
        <source>Edit snippet</source>
        <translation>Baustein bearbeiten</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Remove image</source>
        <translation>Bild entfernen</translation>
    </message>
    <message>
        <source>Attach image from clipboard</source>
        <translation>Bild aus der Zwischenablage anhängen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Discard the changes?</source>
        <translation>Änderungen verwerfen?</translation>
    </message>
</context>
<context>
    <name>SnippetStrip</name>
    <message>
        <source>Snippets</source>
        <translation>Bausteine</translation>
    </message>
    <message>
        <source>New snippet</source>
        <translation>Neuer Baustein</translation>
    </message>
    <message>
        <source>Snippet</source>
        <translation>Baustein</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Delete snippet?</source>
        <translation>Baustein löschen?</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>History length</source>
        <translation>Länge des Verlaufs</translation>
    </message>
    <message>
        <source>A shorter limit applies from the next copy.</source>
        <translation>Eine kleinere Obergrenze gilt ab der nächsten Kopie.</translation>
    </message>
    <message>
        <source>60 clips</source>
        <translation>60 Einträge</translation>
    </message>
    <message>
        <source>200 clips</source>
        <translation>200 Einträge</translation>
    </message>
    <message>
        <source>1,000 clips</source>
        <translation>1.000 Einträge</translation>
    </message>
    <message>
        <source>Keep for</source>
        <translation>Behalten für</translation>
    </message>
    <message>
        <source>Forever</source>
        <translation>Immer</translation>
    </message>
    <message>
        <source>30 days</source>
        <translation>30 Tage</translation>
    </message>
    <message>
        <source>7 days</source>
        <translation>7 Tage</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 Tag</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>%1 used</source>
        <translation>%1 belegt</translation>
    </message>
    <message>
        <source>No limit</source>
        <translation>Keine Obergrenze</translation>
    </message>
    <message>
        <source>16 MB</source>
        <translation>16 MB</translation>
    </message>
    <message>
        <source>64 MB</source>
        <translation>64 MB</translation>
    </message>
    <message>
        <source>256 MB</source>
        <translation>256 MB</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Pinned clips stay. When it is full, the oldest go first.</source>
        <translation>Angeheftetes bleibt. Wenn es voll ist, geht das Älteste zuerst.</translation>
    </message>
    <message>
        <source>128 MB</source>
        <translation>128 MB</translation>
    </message>
    <message>
        <source>512 MB</source>
        <translation>512 MB</translation>
    </message>
    <message>
        <source>2 GB</source>
        <translation>2 GB</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Verschlüsselung</translation>
    </message>
    <message>
        <source>Encrypt what is stored</source>
        <translation>Gespeichertes verschlüsseln</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>From the keyring</source>
        <translation>Aus dem Schlüsselbund</translation>
    </message>
    <message>
        <source>Passphrase…</source>
        <translation>Passphrase…</translation>
    </message>
    <message>
        <source>Forget the key while the screen is locked</source>
        <translation>Schlüssel bei gesperrtem Bildschirm vergessen</translation>
    </message>
    <message>
        <source>Clips, notes, snippets and images. Without the key nobody can read them, you included. Settings and reminders stay plain.</source>
        <translation>Einträge, Notizen, Bausteine und Bilder. Ohne den Schlüssel kann sie niemand lesen, auch du nicht. Einstellungen und Erinnerungen bleiben lesbar.</translation>
    </message>
    <message>
        <source>Snippets</source>
        <translation>Bausteine</translation>
    </message>
    <message>
        <source>1 snippet</source>
        <translation>1 Baustein</translation>
    </message>
    <message>
        <source>%1 snippets</source>
        <translation>%1 Bausteine</translation>
    </message>
    <message>
        <source>As a file to pass on, with their images. It is not encrypted.</source>
        <translation>Als Datei zum Weitergeben, mit ihren Bildern. Sie ist nicht verschlüsselt.</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>The last hour</source>
        <translation>Die letzte Stunde</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 Eintrag</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 Einträge</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Everything on this computer</source>
        <translation>Alles auf diesem Computer</translation>
    </message>
    <message>
        <source>History, notes, snippets, shelf and settings are removed from the disk at once, and Ravelo ends. Your files stay where they are.</source>
        <translation>Verlauf, Notizen, Bausteine, Ablage und Einstellungen werden sofort von der Festplatte gelöscht, und Ravelo beendet sich. Deine Dateien bleiben, wo sie sind.</translation>
    </message>
    <message>
        <source>Erase everything…</source>
        <translation>Alles löschen…</translation>
    </message>
    <message>
        <source>Erase everything on this computer?</source>
        <translation>Alles auf diesem Computer löschen?</translation>
    </message>
    <message>
        <source>There is no undo.</source>
        <translation>Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>gesperrt</translation>
    </message>
    <message>
        <source>Clear the last hour?</source>
        <translation>Die letzte Stunde löschen?</translation>
    </message>
</context>
<context>
    <name>TitledPage</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>ToastCapsule</name>
    <message>
        <source>%1. Undo with Control Z</source>
        <translation>%1. Rückgängig mit Steuerung Z</translation>
    </message>
</context>
<context>
    <name>TooLargeText</name>
    <message>
        <source>%1 megapixels</source>
        <translation>%1 Megapixel</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>mehr als %1</translation>
    </message>
    <message>
        <source>Text of %1</source>
        <translation>Text von %1</translation>
    </message>
    <message>
        <source>Image of %1</source>
        <translation>Bild von %1</translation>
    </message>
    <message>
        <source>Text of %1, the limit is %2</source>
        <translation>Text von %1, die Obergrenze ist %2</translation>
    </message>
    <message>
        <source>Image of %1, the limit is %2</source>
        <translation>Bild von %1, die Obergrenze ist %2</translation>
    </message>
    <message>
        <source>Too large to keep · %1 of text</source>
        <translation>Zu groß zum Behalten · %1 Text</translation>
    </message>
    <message>
        <source>Too large to keep · image of %1</source>
        <translation>Zu groß zum Behalten · Bild von %1</translation>
    </message>
    <message>
        <source>%1 megapixels of 16 bits</source>
        <translation>%1 Megapixel mit 16 Bit</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Shown under the notch — click to hide</source>
        <translation>Unter der Notch sichtbar — zum Ausblenden klicken</translation>
    </message>
    <message>
        <source>Hidden — click to show under the notch</source>
        <translation>Ausgeblendet — klicken, um sie unter der Notch zu zeigen</translation>
    </message>
    <message>
        <source>Hide reminders under the notch?</source>
        <translation>Erinnerungen unter der Notch ausblenden?</translation>
    </message>
    <message>
        <source>Show reminders under the notch?</source>
        <translation>Erinnerungen unter der Notch zeigen?</translation>
    </message>
    <message>
        <source>Turno da noite — apaga a tela em ~5s e trabalha no pendente</source>
        <translation>Nachtschicht — schaltet den Bildschirm in ~5 s aus und arbeitet Offenes ab</translation>
    </message>
    <message>
        <source>Shut down the Mac</source>
        <translation>Computer ausschalten</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Shut down the Mac?</source>
        <translation>Computer ausschalten?</translation>
    </message>
</context>
<context>
    <name>UpdateView</name>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
</context>
<context>
    <name>UsageRow</name>
    <message>
        <source>%1 has reset; %2 is from before the reset</source>
        <translation>%1 wurde zurückgesetzt; %2 ist von davor</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Welcome to Ravelo</source>
        <translation>Willkommen bei Ravelo</translation>
    </message>
    <message>
        <source>Clipboard, shelf, snippets and a focus timer — one hover away at the top of your screen.</source>
        <translation>Zwischenablage, Ablage, Bausteine und Timer — jederzeit oben am Bildschirm.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Los geht’s</translation>
    </message>
    <message>
        <source>Super+V is taken by another program</source>
        <translation>Super+V gehört einem anderen Programm</translation>
    </message>
    <message>
        <source>Open it with Super+V, too</source>
        <translation>Auch mit Super+V öffnen</translation>
    </message>
</context>
<context>
    <name>ravelo::CaptureRules</name>
    <message>
        <source>A bracket is not closed, at character %1</source>
        <translation>Eine Klammer ist nicht geschlossen, bei Zeichen %1</translation>
    </message>
    <message>
        <source>%1%2, at character %3</source>
        <translation>%1%2, bei Zeichen %3</translation>
    </message>
</context>
<context>
    <name>ravelo::ClipListModel</name>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Too large to keep</source>
        <translation>Zu groß zum Behalten</translation>
    </message>
    <message>
        <source>forgotten in less than a minute</source>
        <translation>in weniger als einer Minute vergessen</translation>
    </message>
    <message>
        <source>forgotten in 1 minute</source>
        <translation>in 1 Minute vergessen</translation>
    </message>
    <message>
        <source>forgotten in %1 minutes</source>
        <translation>in %1 Minuten vergessen</translation>
    </message>
    <message>
        <source>forgotten %1</source>
        <translation>vergessen %1</translation>
    </message>
    <message>
        <source>in memory only</source>
        <translation>nur im Speicher</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>gerade eben</translation>
    </message>
    <message>
        <source>This expression takes too long</source>
        <translation>Dieser Ausdruck dauert zu lange</translation>
    </message>
    <message>
        <source>Turn on “Show program and size in the list” to find programs</source>
        <translation>Schalte „Programm und Größe in der Liste zeigen“ ein, um Programme zu finden</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>Angeheftet</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
</context>
<context>
    <name>ravelo::ClipPasting</name>
    <message>
        <source>Shift+Return</source>
        <translation>Umschalt+Eingabe</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Paste a line break into the terminal?</source>
        <translation>Einen Zeilenumbruch ins Terminal einfügen?</translation>
    </message>
    <message>
        <source>Paste %1 line breaks into the terminal?</source>
        <translation>%1 Zeilenumbrüche ins Terminal einfügen?</translation>
    </message>
</context>
<context>
    <name>ravelo::ClipPreview</name>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Hex</source>
        <translation>Hex</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>HSL</source>
        <translation>HSL</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>1 character</source>
        <translation>1 Zeichen</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 Zeichen</translation>
    </message>
    <message>
        <source>%1 lines, %2</source>
        <translation>%1 Zeilen, %2</translation>
    </message>
    <message>
        <source>PNG, %1</source>
        <translation>PNG, %1</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Not there any more</source>
        <translation>Nicht mehr da</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
</context>
<context>
    <name>ravelo::Clips</name>
    <message>
        <source>Clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <source>Pictures cannot be joined</source>
        <translation>Bilder lassen sich nicht verbinden</translation>
    </message>
    <message>
        <source>Copied %1 ✓</source>
        <translation>%1 kopiert ✓</translation>
    </message>
    <message>
        <source>History cleared · 1 clip</source>
        <translation>Verlauf gelöscht · 1 Eintrag</translation>
    </message>
    <message>
        <source>History cleared · %1 clips</source>
        <translation>Verlauf gelöscht · %1 Einträge</translation>
    </message>
    <message>
        <source>Too long to edit</source>
        <translation>Zu lang zum Bearbeiten</translation>
    </message>
    <message>
        <source>joined by spaces, in this order</source>
        <translation>mit Leerzeichen verbunden, in dieser Reihenfolge</translation>
    </message>
    <message>
        <source>joined by commas, in this order</source>
        <translation>mit Kommas verbunden, in dieser Reihenfolge</translation>
    </message>
    <message>
        <source>joined by nothing, in this order</source>
        <translation>ohne Trennzeichen verbunden, in dieser Reihenfolge</translation>
    </message>
    <message>
        <source>joined by line breaks, in this order</source>
        <translation>mit Zeilenumbrüchen verbunden, in dieser Reihenfolge</translation>
    </message>
    <message>
        <source>Copied %1 ✓ Pictures left out</source>
        <translation>%1 kopiert ✓ Ohne Bilder</translation>
    </message>
    <message>
        <source>The image cannot be read</source>
        <translation>Das Bild ist nicht lesbar</translation>
    </message>
</context>
<context>
    <name>ravelo::DataLock</name>
    <message>
        <source>another Ravelo has taken over</source>
        <translation>ein anderes Ravelo hat übernommen</translation>
    </message>
    <message>
        <source>its lock was removed</source>
        <translation>seine Sperre wurde entfernt</translation>
    </message>
</context>
<context>
    <name>ravelo::Deleting</name>
    <message>
        <source>Deleted</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <source>%1 deleted</source>
        <translation>%1 gelöscht</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Restored ✓</source>
        <translation>Wiederhergestellt ✓</translation>
    </message>
    <message>
        <source>Could not undo: %1</source>
        <translation>Nicht rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>Restored %1 of %2: %3</source>
        <translation>%1 von %2 wiederhergestellt: %3</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
</context>
<context>
    <name>ravelo::DesktopNotices</name>
    <message>
        <source>The timer has ended</source>
        <translation>Der Timer ist abgelaufen</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Neu starten</translation>
    </message>
    <message>
        <source>5 more minutes</source>
        <translation>Noch 5 Minuten</translation>
    </message>
    <message>
        <source>A file has arrived</source>
        <translation>Eine Datei ist angekommen</translation>
    </message>
    <message>
        <source>%1 files have arrived</source>
        <translation>%1 Dateien sind angekommen</translation>
    </message>
    <message>
        <source>In your downloads folder.</source>
        <translation>Im Ordner „Downloads“.</translation>
    </message>
    <message>
        <source>Saving fails</source>
        <translation>Speichern fehlgeschlagen</translation>
    </message>
    <message>
        <source>The panel has the reason.</source>
        <translation>Der Grund steht im Panel.</translation>
    </message>
    <message>
        <source>5h session</source>
        <translation>5-Std.-Sitzung</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>%1 was reset</source>
        <translation>%1 wurde zurückgesetzt</translation>
    </message>
    <message>
        <source>%1: %2 used</source>
        <translation>%1: %2 verbraucht</translation>
    </message>
    <message>
        <source>Resets in %1.</source>
        <translation>Reset in %1.</translation>
    </message>
</context>
<context>
    <name>ravelo::Encryption</name>
    <message>
        <source>Ravelo: key of the clipboard history</source>
        <translation>Ravelo: Schlüssel des Zwischenablage-Verlaufs</translation>
    </message>
    <message>
        <source>That is not the passphrase</source>
        <translation>Das ist nicht die Passphrase</translation>
    </message>
    <message>
        <source>Not enough memory to try the passphrase</source>
        <translation>Zu wenig Speicher, um die Passphrase zu prüfen</translation>
    </message>
    <message>
        <source>The keyring did not keep the key</source>
        <translation>Der Schlüsselbund hat den Schlüssel nicht behalten</translation>
    </message>
    <message>
        <source>The keyring did not keep the key: %1</source>
        <translation>Der Schlüsselbund hat den Schlüssel nicht behalten: %1</translation>
    </message>
</context>
<context>
    <name>ravelo::ExtensionOffer</name>
    <message>
        <source>It is not installed.</source>
        <translation>Sie ist nicht installiert.</translation>
    </message>
    <message>
        <source>The extension is older than Ravelo. Log out and in once.</source>
        <translation>Die Erweiterung ist älter als Ravelo. Melde dich einmal ab und wieder an.</translation>
    </message>
    <message>
        <source>The extension is newer than Ravelo. Quit Ravelo and start it again.</source>
        <translation>Die Erweiterung ist neuer als Ravelo. Beende Ravelo und starte es neu.</translation>
    </message>
    <message>
        <source>It is turned on. Log out and in once.</source>
        <translation>Sie ist eingeschaltet. Melde dich einmal ab und wieder an.</translation>
    </message>
    <message>
        <source>It is turned on. Quit Ravelo and start it again.</source>
        <translation>Sie ist eingeschaltet. Beende Ravelo und starte es neu.</translation>
    </message>
    <message>
        <source>It could not be turned on. Turn extensions on in the Extensions app, or log out and in and try again.</source>
        <translation>Sie ließ sich nicht einschalten. Schalte Erweiterungen in der App „Erweiterungen“ ein, oder melde dich ab und wieder an und versuche es noch einmal.</translation>
    </message>
</context>
<context>
    <name>ravelo::FileChoice</name>
    <message>
        <source>Export snippets</source>
        <translation>Bausteine exportieren</translation>
    </message>
    <message>
        <source>Import snippets</source>
        <translation>Bausteine importieren</translation>
    </message>
    <message>
        <source>JSON files</source>
        <translation>JSON-Dateien</translation>
    </message>
</context>
<context>
    <name>ravelo::Files</name>
    <message>
        <source>the disk is full</source>
        <translation>die Festplatte ist voll</translation>
    </message>
    <message>
        <source>the folder is read-only</source>
        <translation>der Ordner ist schreibgeschützt</translation>
    </message>
    <message>
        <source>%1 could not be removed</source>
        <translation>%1 konnte nicht gelöscht werden</translation>
    </message>
</context>
<context>
    <name>ravelo::Focus</name>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Minutes are a whole number from 1</source>
        <translation>Minuten: eine ganze Zahl ab 1</translation>
    </message>
</context>
<context>
    <name>ravelo::IgnoreTrial</name>
    <message>
        <source>the first pattern</source>
        <translation>das erste Muster</translation>
    </message>
    <message>
        <source>the second pattern</source>
        <translation>das zweite Muster</translation>
    </message>
    <message>
        <source>the third pattern</source>
        <translation>das dritte Muster</translation>
    </message>
    <message>
        <source>the fourth pattern</source>
        <translation>das vierte Muster</translation>
    </message>
    <message>
        <source>the fifth pattern</source>
        <translation>das fünfte Muster</translation>
    </message>
    <message>
        <source>pattern %1</source>
        <translation>Muster %1</translation>
    </message>
    <message>
        <source>Would be ignored, by %1</source>
        <translation>Würde ignoriert, durch %1</translation>
    </message>
    <message>
        <source>Would stay in memory only: %1 takes too long</source>
        <translation>Bliebe nur im Speicher: %1 dauert zu lange</translation>
    </message>
    <message>
        <source>Would be kept</source>
        <translation>Würde behalten</translation>
    </message>
</context>
<context>
    <name>ravelo::LinkOpening</name>
    <message>
        <source>Not opened</source>
        <translation>Nicht geöffnet</translation>
    </message>
    <message>
        <source>No program opens %1 links</source>
        <translation>Kein Programm öffnet %1-Links</translation>
    </message>
    <message>
        <source>Open with %1?</source>
        <translation>Mit %1 öffnen?</translation>
    </message>
    <message>
        <source>Not there any more</source>
        <translation>Nicht mehr da</translation>
    </message>
    <message>
        <source>No program opens %1</source>
        <translation>Kein Programm öffnet %1</translation>
    </message>
</context>
<context>
    <name>ravelo::NearbySend</name>
    <message>
        <source>Pair a device in KDE Connect, or install Blueman, to send files to it</source>
        <translation>Kopple ein Gerät in KDE Connect oder installiere Blueman, um ihm Dateien zu senden</translation>
    </message>
</context>
<context>
    <name>ravelo::Notes</name>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
</context>
<context>
    <name>ravelo::Notices</name>
    <message>
        <source>Not deleted from the disk:</source>
        <translation>Nicht von der Festplatte gelöscht:</translation>
    </message>
    <message>
        <source>Saved again.</source>
        <translation>Wieder gespeichert.</translation>
    </message>
    <message>
        <source>This looks like a secret: %1.</source>
        <translation>Das sieht nach einem Geheimnis aus: %1.</translation>
    </message>
    <message>
        <source>Such texts are never written to disk and soon forgotten.</source>
        <translation>Solche Texte werden nie auf die Festplatte geschrieben und bald vergessen.</translation>
    </message>
    <message>
        <source>Keep such texts</source>
        <translation>Solche Texte behalten</translation>
    </message>
    <message>
        <source>Not saved any more:</source>
        <translation>Nicht mehr gespeichert:</translation>
    </message>
    <message>
        <source>Not saved for %1 minute:</source>
        <translation>Seit %1 Minute nicht gespeichert:</translation>
    </message>
    <message>
        <source>Not saved for %1 minutes:</source>
        <translation>Seit %1 Minuten nicht gespeichert:</translation>
    </message>
    <message>
        <source>%1. Nothing is lost while Ravelo runs.</source>
        <translation>%1. Solange Ravelo läuft, geht nichts verloren.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Saved copy put aside:</source>
        <translation>Gespeicherte Kopie beiseitegelegt:</translation>
    </message>
    <message>
        <source>%1, in Ravelo’s data folder. The history starts empty.</source>
        <translation>%1, in Ravelos Datenordner. Der Verlauf beginnt leer.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Preferences put aside:</source>
        <translation>Einstellungen beiseitegelegt:</translation>
    </message>
    <message>
        <source>%1. Settings are back at their defaults.</source>
        <translation>%1. Es gelten wieder die Vorgaben.</translation>
    </message>
</context>
<context>
    <name>ravelo::OnboardingController</name>
    <message>
        <source>Ravelo Setup</source>
        <translation>Ravelo einrichten</translation>
    </message>
</context>
<context>
    <name>ravelo::PaceNotes</name>
    <message>
        <source>%1 min.</source>
        <translation>%1 Min.</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 Tage</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 Std.</translation>
    </message>
    <message>
        <source>%1 h %2 min.</source>
        <translation>%1 Std. %2 Min.</translation>
    </message>
    <message>
        <source>%1, %2 before the reset</source>
        <translation>%1, %2 vor dem Zurücksetzen</translation>
    </message>
    <message>
        <source>Lasts until the reset</source>
        <translation>Reicht bis zum Zurücksetzen</translation>
    </message>
    <message>
        <source>Last day: +%1%</source>
        <translation>Letzter Tag: +%1%</translation>
    </message>
    <message>
        <source>Last hour: +%1%</source>
        <translation>Letzte Stunde: +%1%</translation>
    </message>
</context>
<context>
    <name>ravelo::PaceText</name>
    <message>
        <source>at this pace full at %1</source>
        <translation>so um %1 voll</translation>
    </message>
    <message>
        <source>at this pace full on %1</source>
        <translation>so am %1 voll</translation>
    </message>
</context>
<context>
    <name>ravelo::PastePermission</name>
    <message>
        <source>You did not allow Ravelo to type, so it only copies.</source>
        <translation>Du hast Ravelo nicht erlaubt zu tippen, deshalb kopiert es nur.</translation>
    </message>
    <message>
        <source>Into the window you came from. The desktop asks you first whether to allow remote interaction.</source>
        <translation>In das Fenster, aus dem du kommst. Der Desktop fragt dich vorher, ob er Interaktion aus der Ferne erlauben soll.</translation>
    </message>
    <message>
        <source>Only copies: the desktop did not answer when Ravelo asked for permission to type.</source>
        <translation>Kopiert nur: Der Desktop hat nicht geantwortet, als Ravelo um die Erlaubnis zum Tippen bat.</translation>
    </message>
</context>
<context>
    <name>ravelo::Pausing</name>
    <message>
        <source>Paused</source>
        <translation>Pausiert</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 Min.</translation>
    </message>
    <message>
        <source>%1 sec</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Capture resumed</source>
        <translation>Erfassung fortgesetzt</translation>
    </message>
    <message>
        <source>Next copy will be ignored</source>
        <translation>Die nächste Kopie wird ignoriert</translation>
    </message>
</context>
<context>
    <name>ravelo::PeakText</name>
    <message>
        <source>PEAK · ends %1</source>
        <translation>SPITZENZEIT · endet %1</translation>
    </message>
    <message>
        <source>h:mm Ap</source>
        <translation>H:mm</translation>
    </message>
    <message>
        <source>OFF-PEAK · peak in %1</source>
        <translation>NEBENZEIT · Spitze in %1</translation>
    </message>
</context>
<context>
    <name>ravelo::ReceivedModel</name>
    <message>
        <source>just now</source>
        <translation>gerade eben</translation>
    </message>
</context>
<context>
    <name>ravelo::SecondPlan</name>
    <message>
        <source>No such folder</source>
        <translation>Kein solcher Ordner</translation>
    </message>
    <message>
        <source>That is the first account</source>
        <translation>Das ist das erste Konto</translation>
    </message>
    <message>
        <source>No login there</source>
        <translation>Dort ist keine Anmeldung</translation>
    </message>
</context>
<context>
    <name>ravelo::SecretForm</name>
    <message>
        <source>OpenSSH private key</source>
        <translation>Privater OpenSSH-Schlüssel</translation>
    </message>
    <message>
        <source>Private key</source>
        <translation>Privater Schlüssel</translation>
    </message>
    <message>
        <source>GitHub token</source>
        <translation>GitHub-Token</translation>
    </message>
    <message>
        <source>GitLab token</source>
        <translation>GitLab-Token</translation>
    </message>
    <message>
        <source>AWS key</source>
        <translation>AWS-Schlüssel</translation>
    </message>
    <message>
        <source>Slack token</source>
        <translation>Slack-Token</translation>
    </message>
    <message>
        <source>Stripe key</source>
        <translation>Stripe-Schlüssel</translation>
    </message>
    <message>
        <source>Anthropic key</source>
        <translation>Anthropic-Schlüssel</translation>
    </message>
    <message>
        <source>OpenAI key</source>
        <translation>OpenAI-Schlüssel</translation>
    </message>
    <message>
        <source>Google key</source>
        <translation>Google-Schlüssel</translation>
    </message>
    <message>
        <source>JSON Web Token</source>
        <translation>JSON Web Token</translation>
    </message>
    <message>
        <source>Card number</source>
        <translation>Kartennummer</translation>
    </message>
    <message>
        <source>Key-like word</source>
        <translation>Schlüsselähnliches Wort</translation>
    </message>
</context>
<context>
    <name>ravelo::Sending</name>
    <message>
        <source>Could not send to %1</source>
        <translation>Konnte nicht an %1 senden</translation>
    </message>
    <message>
        <source>Sent to %1</source>
        <translation>An %1 gesendet</translation>
    </message>
    <message>
        <source>Sent %1 of %2 to %3</source>
        <translation>%1 von %2 an %3 gesendet</translation>
    </message>
    <message>
        <source>A folder cannot be sent, only files</source>
        <translation>Ein Ordner lässt sich nicht senden, nur Dateien</translation>
    </message>
    <message>
        <source>Folders cannot be sent, only files</source>
        <translation>Ordner lassen sich nicht senden, nur Dateien</translation>
    </message>
    <message>
        <source>Could not send</source>
        <translation>Konnte nicht senden</translation>
    </message>
</context>
<context>
    <name>ravelo::SettingsWindow</name>
    <message>
        <source>1 snippet exported.</source>
        <translation>1 Baustein exportiert.</translation>
    </message>
    <message>
        <source>%1 snippets exported.</source>
        <translation>%1 Bausteine exportiert.</translation>
    </message>
    <message>
        <source>All of them are there already.</source>
        <translation>Alle sind schon da.</translation>
    </message>
    <message>
        <source>1 snippet imported.</source>
        <translation>1 Baustein importiert.</translation>
    </message>
    <message>
        <source>%1 snippets imported.</source>
        <translation>%1 Bausteine importiert.</translation>
    </message>
    <message>
        <source>Ravelo Settings</source>
        <translation>Ravelo – Einstellungen</translation>
    </message>
    <message>
        <source>On %1, also start ravelo from its configuration file.</source>
        <translation>Unter %1 muss ravelo auch aus dessen Konfigurationsdatei gestartet werden.</translation>
    </message>
</context>
<context>
    <name>ravelo::ShelfContents</name>
    <message>
        <source>%1 selected</source>
        <translation>%1 ausgewählt</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>Deselect</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Entfernt</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 entfernt</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Restored ✓</source>
        <translation>Wiederhergestellt ✓</translation>
    </message>
</context>
<context>
    <name>ravelo::ShelfFiles</name>
    <message>
        <source>Shelf</source>
        <translation>Ablage</translation>
    </message>
</context>
<context>
    <name>ravelo::ShortcutChoice</name>
    <message>
        <source>Letters and digits need Ctrl, Alt or Super.</source>
        <translation>Buchstaben und Ziffern brauchen Strg, Alt oder Super.</translation>
    </message>
    <message>
        <source>Programs copy and paste with these keys. Press others.</source>
        <translation>Mit diesen Tasten kopieren und fügen Programme ein. Drücke andere.</translation>
    </message>
    <message>
        <source>Escape cancels, Backspace clears.</source>
        <translation>Esc bricht ab, die Rücktaste löscht.</translation>
    </message>
    <message>
        <source>Click, then press the keys to open Ravelo with.</source>
        <translation>Klicke und drücke dann die Tasten, die Ravelo öffnen sollen.</translation>
    </message>
    <message>
        <source>Waiting for the desktop…</source>
        <translation>Warten auf den Desktop…</translation>
    </message>
    <message>
        <source>Click, then press new keys to change it.</source>
        <translation>Zum Ändern klicken, dann neue Tasten drücken.</translation>
    </message>
    <message>
        <source>The desktop has registered “%1”. Click, then press new keys to change it.</source>
        <translation>Der Desktop hat „%1“ eingetragen. Klicken, dann neue Tasten drücken, um sie zu ändern.</translation>
    </message>
    <message>
        <source>The desktop has assigned no keys to it; another program may have them. Click, then press other keys, or choose some in the desktop’s settings.</source>
        <translation>Der Desktop hat keine Tasten dafür vergeben; vielleicht hat sie ein anderes Programm. Klicken, dann andere drücken, oder in den Einstellungen des Desktops welche wählen.</translation>
    </message>
    <message>
        <source>Taken by another program. Click, then press other keys.</source>
        <translation>Von einem anderen Programm belegt. Klicke und drücke andere Tasten.</translation>
    </message>
    <message>
        <source>Not accepted. Click, then press other keys.</source>
        <translation>Nicht angenommen. Klicke und drücke andere Tasten.</translation>
    </message>
    <message>
        <source>This desktop lets no program take keys. Put this line into %1’s configuration:</source>
        <translation>Dieser Desktop überlässt Programmen keine Tasten. Füge diese Zeile in die Konfiguration von %1 ein:</translation>
    </message>
    <message>
        <source>This desktop lets no program take keys. Set a key for this command in its keyboard settings:</source>
        <translation>Dieser Desktop überlässt Programmen keine Tasten. Lege in seinen Tastatureinstellungen eine Taste für diesen Befehl fest:</translation>
    </message>
</context>
<context>
    <name>ravelo::ShortcutsPortal</name>
    <message>
        <source>Open or close Ravelo</source>
        <translation>Ravelo öffnen oder schließen</translation>
    </message>
</context>
<context>
    <name>ravelo::Sketch</name>
    <message>
        <source>The sketch is full</source>
        <translation>Die Skizze ist voll</translation>
    </message>
    <message>
        <source>Sketch cleared</source>
        <translation>Skizze geleert</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
</context>
<context>
    <name>ravelo::SnippetFile</name>
    <message>
        <source>The file would have more than 16 MB. Snippets without their images need far less.</source>
        <translation>Die Datei hätte mehr als 16 MB. Bausteine ohne Bilder brauchen viel weniger.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Die Datei lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>The file has more than 16 MB.</source>
        <translation>Die Datei hat mehr als 16 MB.</translation>
    </message>
    <message>
        <source>Snippet %1: %2</source>
        <translation>Baustein %1: %2</translation>
    </message>
    <message>
        <source>it has no title.</source>
        <translation>er hat keinen Titel.</translation>
    </message>
    <message>
        <source>it has no text.</source>
        <translation>er hat keinen Text.</translation>
    </message>
    <message>
        <source>its image is damaged.</source>
        <translation>sein Bild ist beschädigt.</translation>
    </message>
    <message>
        <source>The file is damaged: it is no JSON from character %1 on.</source>
        <translation>Die Datei ist beschädigt: Ab Zeichen %1 ist sie kein JSON.</translation>
    </message>
    <message>
        <source>The file has no snippets of Ravelo.</source>
        <translation>Die Datei enthält keine Bausteine von Ravelo.</translation>
    </message>
    <message>
        <source>The file was written by a newer Ravelo.</source>
        <translation>Die Datei stammt von einem neueren Ravelo.</translation>
    </message>
    <message>
        <source>There are no snippets in the file.</source>
        <translation>In der Datei sind keine Bausteine.</translation>
    </message>
    <message>
        <source>The file has more than 1,000 snippets.</source>
        <translation>Die Datei hat mehr als 1.000 Bausteine.</translation>
    </message>
    <message>
        <source>The image of “%1” is damaged.</source>
        <translation>Das Bild von „%1“ ist beschädigt.</translation>
    </message>
    <message>
        <source>Nothing was imported: %1</source>
        <translation>Nichts wurde importiert: %1</translation>
    </message>
    <message>
        <source>The image of “%1” cannot be read.</source>
        <translation>Das Bild von „%1“ lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>Not exported: %1</source>
        <translation>Nicht exportiert: %1</translation>
    </message>
</context>
<context>
    <name>ravelo::Snippets</name>
    <message>
        <source>Snippet deleted</source>
        <translation>Baustein gelöscht</translation>
    </message>
    <message>
        <source>%1 deleted</source>
        <translation>%1 gelöscht</translation>
    </message>
</context>
<context>
    <name>ravelo::StatusItemController</name>
    <message>
        <source>Open Ravelo</source>
        <translation>Ravelo öffnen</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen…</translation>
    </message>
    <message>
        <source>Set Up Ravelo Again…</source>
        <translation>Ravelo neu einrichten…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Updates suchen…</translation>
    </message>
    <message>
        <source>Quit Ravelo</source>
        <translation>Ravelo beenden</translation>
    </message>
    <message>
        <source>Resume Capture</source>
        <translation>Erfassung fortsetzen</translation>
    </message>
    <message>
        <source>Pause Capture</source>
        <translation>Erfassung pausieren</translation>
    </message>
    <message>
        <source>Pause for 15 minutes</source>
        <translation>15 Minuten pausieren</translation>
    </message>
    <message>
        <source>Pause for an hour</source>
        <translation>Eine Stunde pausieren</translation>
    </message>
    <message>
        <source>Pause until resumed</source>
        <translation>Pausieren, bis fortgesetzt wird</translation>
    </message>
    <message>
        <source>Capture paused until %1</source>
        <translation>Erfassung pausiert bis %1</translation>
    </message>
    <message>
        <source>Capture paused</source>
        <translation>Erfassung pausiert</translation>
    </message>
</context>
<context>
    <name>ravelo::StatusText</name>
    <message>
        <source>Last activity %1</source>
        <translation>Zuletzt aktiv: %1</translation>
    </message>
    <message>
        <source>5h session</source>
        <translation>5-Std.-Sitzung</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>%1: 5h %2 · week %3</source>
        <translation>%1: 5 Std. %2 · Woche %3</translation>
    </message>
</context>
<context>
    <name>ravelo::Store</name>
    <message>
        <source>too large to keep in memory</source>
        <translation>zu groß für den Speicher</translation>
    </message>
    <message>
        <source>%1 could not be removed</source>
        <translation>%1 konnte nicht gelöscht werden</translation>
    </message>
    <message>
        <source>the history was cleared</source>
        <translation>der Verlauf wurde gelöscht</translation>
    </message>
    <message>
        <source>what is stored was written by a newer Ravelo</source>
        <translation>das Gespeicherte stammt von einem neueren Ravelo</translation>
    </message>
    <message>
        <source>what is stored is encrypted, and its key is gone</source>
        <translation>das Gespeicherte ist verschlüsselt, und sein Schlüssel fehlt</translation>
    </message>
    <message>
        <source>what is stored was erased meanwhile</source>
        <translation>das Gespeicherte wurde inzwischen gelöscht</translation>
    </message>
</context>
<context>
    <name>ravelo::StoreNotices</name>
    <message>
        <source>New copies are sealed until then.</source>
        <translation>Neue Kopien sind bis dahin versiegelt.</translation>
    </message>
    <message>
        <source>Unlock…</source>
        <translation>Entsperren…</translation>
    </message>
    <message>
        <source>The key stayed in memory while the screen was locked:</source>
        <translation>Der Schlüssel blieb im Speicher, während der Bildschirm gesperrt war:</translation>
    </message>
    <message>
        <source>A copied image was not kept:</source>
        <translation>Ein kopiertes Bild wurde nicht behalten:</translation>
    </message>
    <message>
        <source>New copies are sealed until the passphrase is typed.</source>
        <translation>Neue Kopien bleiben versiegelt, bis die Passphrase eingegeben ist.</translation>
    </message>
</context>
<context>
    <name>ravelo::Toast</name>
    <message>
        <source>Copied ✓</source>
        <translation>Kopiert ✓</translation>
    </message>
</context>
<context>
    <name>ravelo::Transfers</name>
    <message>
        <source>Another export or import is running.</source>
        <translation>Ein anderer Export oder Import läuft noch.</translation>
    </message>
    <message>
        <source>What is stored is encrypted: unlock it first.</source>
        <translation>Das Gespeicherte ist verschlüsselt: Entsperre es zuerst.</translation>
    </message>
    <message>
        <source>Not saved yet: %1</source>
        <translation>Noch nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>Nothing was imported: what is stored was locked or erased meanwhile.</source>
        <translation>Nichts wurde importiert: Das Gespeicherte wurde inzwischen gesperrt oder gelöscht.</translation>
    </message>
</context>
<context>
    <name>ravelo::UpdateText</name>
    <message>
        <source>Cannot check for updates</source>
        <translation>Keine Suche nach Updates möglich</translation>
    </message>
    <message>
        <source>PackageKit is not available. Update Ravelo with your package manager.</source>
        <translation>PackageKit ist nicht verfügbar. Aktualisiere Ravelo mit deiner Paketverwaltung.</translation>
    </message>
    <message>
        <source>Ravelo was not installed from a repository</source>
        <translation>Ravelo kommt nicht aus einer Paketquelle</translation>
    </message>
    <message>
        <source>So the system does not know of newer versions. Install the newest package over this one, or build it again.</source>
        <translation>Daher kennt das System keine neueren Versionen. Installiere das neueste Paket über dieses oder baue es neu.</translation>
    </message>
    <message>
        <source>Not allowed</source>
        <translation>Nicht erlaubt</translation>
    </message>
    <message>
        <source>Permission was denied, or polkit, which grants it, is not running. Update Ravelo with your package manager.</source>
        <translation>Die Erlaubnis wurde verweigert, oder polkit, das sie erteilt, läuft nicht. Aktualisiere Ravelo mit deiner Paketverwaltung.</translation>
    </message>
    <message>
        <source>The update failed</source>
        <translation>Das Update ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Suche nach Updates…</translation>
    </message>
    <message>
        <source>Ravelo is up to date</source>
        <translation>Ravelo ist auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>You have Ravelo %1.</source>
        <translation>Du hast Ravelo %1.</translation>
    </message>
    <message>
        <source>%1 is available</source>
        <translation>%1 ist verfügbar</translation>
    </message>
    <message>
        <source>You have %1.</source>
        <translation>Du hast %1.</translation>
    </message>
    <message>
        <source>Installing %1…</source>
        <translation>%1 wird installiert…</translation>
    </message>
    <message>
        <source>%1 is installed</source>
        <translation>%1 ist installiert</translation>
    </message>
    <message>
        <source>Quit Ravelo and start it again to use it.</source>
        <translation>Beende Ravelo und starte es neu, um es zu benutzen.</translation>
    </message>
</context>
<context>
    <name>ravelo::UpdateWindow</name>
    <message>
        <source>Ravelo Updates</source>
        <translation>Ravelo – Updates</translation>
    </message>
</context>
<context>
    <name>ravelo::Usage</name>
    <message>
        <source>read %1</source>
        <translation>gelesen %1</translation>
    </message>
</context>
<context>
    <name>ravelo::UsageText</name>
    <message>
        <source>sem dados</source>
        <translation>keine Daten</translation>
    </message>
    <message>
        <source>reseta em %1</source>
        <translation>Reset in %1</translation>
    </message>
</context>
<context>
    <name>ravelo::VaultView</name>
    <message>
        <source>Waiting for the keyring…</source>
        <translation>Warten auf den Schlüsselbund…</translation>
    </message>
    <message>
        <source>No keyring answers</source>
        <translation>Kein Schlüsselbund antwortet</translation>
    </message>
    <message>
        <source>The key is not in the keyring</source>
        <translation>Der Schlüssel ist nicht im Schlüsselbund</translation>
    </message>
    <message>
        <source>Your clips are encrypted</source>
        <translation>Deine Einträge sind verschlüsselt</translation>
    </message>
    <message>
        <source>Your clips were stored by a newer Ravelo</source>
        <translation>Deine Einträge stammen von einem neueren Ravelo</translation>
    </message>
    <message>
        <source>The key file is missing or damaged</source>
        <translation>Die Schlüsseldatei fehlt oder ist beschädigt</translation>
    </message>
    <message>
        <source>Your clips are encrypted. They are back as soon as it is unlocked.</source>
        <translation>Deine Einträge sind verschlüsselt. Sie sind zurück, sobald er entsperrt ist.</translation>
    </message>
    <message>
        <source>Ravelo’s key is kept there. Start it, or log in again.</source>
        <translation>Dort liegt Ravelos Schlüssel. Starte ihn oder melde dich neu an.</translation>
    </message>
    <message>
        <source>Type the passphrase to open them.</source>
        <translation>Gib die Passphrase ein, um sie zu öffnen.</translation>
    </message>
    <message>
        <source>Nothing was overwritten.</source>
        <translation>Nichts wurde überschrieben.</translation>
    </message>
</context>
<context>
    <name>ravelo::Wording</name>
    <message>
        <source>en</source>
        <translation>de</translation>
    </message>
</context>
</TS>
