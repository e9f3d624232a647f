<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AccessibilityOffer</name>
    <message>
        <source> and %@ more</source>
        <translation> und %@ weitere</translation>
    </message>
    <message>
        <source> These must be restarted to take notice: %@.</source>
        <translation> Diese müssen dafür neu gestartet werden: %@.</translation>
    </message>
    <message>
        <source>Turn on accessibility?</source>
        <translation>Barrierefreiheit einschalten?</translation>
    </message>
    <message>
        <source>Tovrel reads other applications&apos; menus over the accessibility bus. Once it is on, applications publish what they show to every program of yours, as they do for a screen reader. You can turn it off again in the same place.</source>
        <translation>Tovrel liest die Menüs anderer Anwendungen über den Bus der Barrierefreiheit. Ist sie eingeschaltet, zeigen Anwendungen jedem deiner Programme, was auf dem Bildschirm steht, so wie einem Bildschirmleser. An derselben Stelle kannst du sie wieder ausschalten.</translation>
    </message>
    <message>
        <source>Turn On</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Accessibility could not be turned on</source>
        <translation>Barrierefreiheit ließ sich nicht einschalten</translation>
    </message>
    <message>
        <source>The session has no accessibility bus, or it does not answer. The package at-spi2-core provides it.</source>
        <translation>Die Sitzung hat keinen Bus der Barrierefreiheit, oder er antwortet nicht. Er kommt mit dem Paket at-spi2-core.</translation>
    </message>
    <message>
        <source>Turn off accessibility?</source>
        <translation>Barrierefreiheit ausschalten?</translation>
    </message>
    <message>
        <source>It is on: Tovrel can read the menus of applications that were started since.</source>
        <translation>Sie ist eingeschaltet: Tovrel kann die Menüs der Anwendungen lesen, die seitdem gestartet wurden.</translation>
    </message>
    <message>
        <source> Without it, Tovrel cannot read any menus.</source>
        <translation> Ohne sie kann Tovrel keine Menüs lesen.</translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>Ausschalten</translation>
    </message>
    <message>
        <source>Keep On</source>
        <translation>Anlassen</translation>
    </message>
</context>
<context>
    <name>AppRuleColumns</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Bundle ID</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>Verhalten</translation>
    </message>
</context>
<context>
    <name>AppRuleRow</name>
    <message>
        <source>Behavior of %1</source>
        <translation>Verhalten von %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>AppRulesTab</name>
    <message>
        <source>Default Behavior</source>
        <translation>Standardverhalten</translation>
    </message>
    <message>
        <source>What Tovrel does in apps with no saved rule.</source>
        <translation>Was Tovrel in Apps ohne eigene Regel tut.</translation>
    </message>
    <message>
        <source>Current Application</source>
        <translation>Aktuelle App</translation>
    </message>
    <message>
        <source>Frontmost app. Changing this creates or updates its saved rule.</source>
        <translation>Die vordere App. Eine Änderung legt ihre Regel an oder ändert sie.</translation>
    </message>
    <message>
        <source>No frontmost app found</source>
        <translation>Keine App im Vordergrund gefunden</translation>
    </message>
    <message>
        <source>Add App Rule</source>
        <translation>App-Regel hinzufügen</translation>
    </message>
    <message>
        <source>Choose an app bundle and save an override.</source>
        <translation>Wähle eine App und sichere eine Ausnahme für sie.</translation>
    </message>
    <message>
        <source>Choose Application</source>
        <translation>App auswählen</translation>
    </message>
    <message>
        <source>Saved App Rules</source>
        <translation>Gesicherte App-Regeln</translation>
    </message>
    <message>
        <source>Apps with behavior different from the default.</source>
        <translation>Apps, die sich anders als der Standard verhalten.</translation>
    </message>
    <message>
        <source>No saved app rules</source>
        <translation>Keine App-Regeln gesichert</translation>
    </message>
</context>
<context>
    <name>BehaviorHint</name>
    <message>
        <source>Enabled opens Tovrel in this app. Disabled ignores the hotkey in this app.</source>
        <translation>„Aktiviert“ öffnet Tovrel in dieser App. „Deaktiviert“ überlässt ihr das Kürzel.</translation>
    </message>
</context>
<context>
    <name>ChooseApplicationDialog</name>
    <message>
        <source>Choose Application</source>
        <translation>App auswählen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>No matches</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
</context>
<context>
    <name>CommandFailure</name>
    <message>
        <source>Custom command failed</source>
        <translation>Eigener Befehl fehlgeschlagen</translation>
    </message>
    <message>
        <source>There is nothing to open.</source>
        <translation>Es gibt nichts zu öffnen.</translation>
    </message>
    <message>
        <source>It was ended by signal %@.</source>
        <translation>Beendet durch Signal %@.</translation>
    </message>
    <message>
        <source>It ended with status %@.</source>
        <translation>Beendet mit Status %@.</translation>
    </message>
    <message>
        <source>%@ could not be started: %@.</source>
        <translation>%@ ließ sich nicht starten: %@.</translation>
    </message>
</context>
<context>
    <name>CommandsTab</name>
    <message>
        <source>Edit Command</source>
        <translation>Befehl bearbeiten</translation>
    </message>
    <message>
        <source>Add Command</source>
        <translation>Befehl hinzufügen</translation>
    </message>
    <message>
        <source>Create local commands that appear beside app menu commands.</source>
        <translation>Eigene Befehle, die neben den Menübefehlen der Apps erscheinen.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Aliases separated by commas</source>
        <translation>Aliasnamen, durch Kommas getrennt</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Save Changes</source>
        <translation>Änderungen sichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Custom Commands</source>
        <translation>Eigene Befehle</translation>
    </message>
    <message>
        <source>Local actions you have added to Tovrel.</source>
        <translation>Aktionen, die du Tovrel hinzugefügt hast.</translation>
    </message>
    <message>
        <source>No custom commands</source>
        <translation>Keine eigenen Befehle</translation>
    </message>
    <message>
        <source>Edit %1</source>
        <translation>%1 bearbeiten</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Run “%@”?</source>
        <translation>„%@“ ausführen?</translation>
    </message>
    <message>
        <source>This %@ command can run actions on your Mac.</source>
        <translation>Dieser %@-Befehl kann Aktionen auf deinem Mac ausführen.</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Ausführen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Start typing</source>
        <translation>Einfach lostippen</translation>
    </message>
    <message>
        <source>No commands</source>
        <translation>Keine Befehle</translation>
    </message>
    <message>
        <source>Search the front app&apos;s menu commands</source>
        <translation>Durchsucht die Menübefehle der vorderen App</translation>
    </message>
    <message>
        <source>Try a different keyword</source>
        <translation>Versuche ein anderes Stichwort</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>Access</source>
        <translation>Zugriff</translation>
    </message>
    <message>
        <source>Allow Tovrel to read app menus locally.</source>
        <translation>Tovrel darf die Menüs von Apps auf diesem Rechner lesen.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Barrierefreiheit</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Needs Permission</source>
        <translation>Erlaubnis fehlt</translation>
    </message>
    <message>
        <source>Turn on Tovrel in System Settings &gt; Privacy &amp; Security &gt; Accessibility, then return and refresh.</source>
        <translation>Schalte Tovrel unter Systemeinstellungen &gt; Datenschutz &amp; Sicherheit &gt; Bedienungshilfen ein, komm zurück und aktualisiere.</translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Choose the global shortcut that opens Tovrel.</source>
        <translation>Das Kürzel, das Tovrel überall öffnet.</translation>
    </message>
    <message>
        <source>Command Palette</source>
        <translation>Befehlspalette</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Keep menu state visible when the front app exposes it.</source>
        <translation>Zeigt den Zustand von Menüpunkten, wenn die vordere App ihn verrät.</translation>
    </message>
    <message>
        <source>Show checked status of menu items</source>
        <translation>Häkchen von Menüpunkten zeigen</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Mitteilungen</translation>
    </message>
    <message>
        <source>Hear of what goes wrong after the palette has closed.</source>
        <translation>Erfahre, was schiefgeht, nachdem die Palette geschlossen ist.</translation>
    </message>
    <message>
        <source>Notify when a custom command fails</source>
        <translation>Mitteilen, wenn ein eigener Befehl fehlschlägt</translation>
    </message>
</context>
<context>
    <name>HistoryTab</name>
    <message>
        <source>Menu Search</source>
        <translation>Menüsuche</translation>
    </message>
    <message>
        <source>Tune aliases and ranking for the front app.</source>
        <translation>Aliasnamen und Rangfolge für die vordere App.</translation>
    </message>
    <message>
        <source>No menu commands detected. Open the app you want to tune, then refresh.</source>
        <translation>Keine Menübefehle gefunden. Öffne die App, die du anpassen willst, und aktualisiere.</translation>
    </message>
    <message>
        <source>Menu Command</source>
        <translation>Menübefehl</translation>
    </message>
    <message>
        <source>Aliases separated by commas</source>
        <translation>Aliasnamen, durch Kommas getrennt</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Save Search Rule</source>
        <translation>Suchregel sichern</translation>
    </message>
    <message>
        <source>Saved Ranking Data</source>
        <translation>Gesicherte Rangfolge</translation>
    </message>
    <message>
        <source>Commands Tovrel has learned from usage.</source>
        <translation>Befehle, die Tovrel aus der Nutzung kennt.</translation>
    </message>
    <message>
        <source>No command usage recorded yet</source>
        <translation>Noch keine Nutzung aufgezeichnet</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Remove local command usage data and learned ranking.</source>
        <translation>Entfernt die aufgezeichnete Nutzung und die gelernte Rangfolge.</translation>
    </message>
    <message>
        <source>Clear History Records</source>
        <translation>Verlauf löschen</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcuts</name>
    <message>
        <source>ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>record_shortcut</source>
        <translation>Zum Aufnehmen klicken</translation>
    </message>
    <message>
        <source>press_shortcut</source>
        <translation>Kürzel drücken …</translation>
    </message>
    <message>
        <source>keyboard_shortcut_used_by_menu_item</source>
        <translation>Tovrel selbst benutzt dieses Kürzel für „%@“.</translation>
    </message>
    <message>
        <source>keyboard_shortcut_used_by_system</source>
        <translation>Der Desktop oder ein anderes Programm hat dieses Kürzel schon.</translation>
    </message>
    <message>
        <source>keyboard_shortcuts_can_be_changed</source>
        <translation>Wozu es dient, steht in den Tastatureinstellungen des Desktops; dort lässt es sich auch freigeben.</translation>
    </message>
    <message>
        <source>force_use_shortcut</source>
        <translation>Trotzdem benutzen</translation>
    </message>
    <message>
        <source>space_key</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>The shortcut %@ is not available</source>
        <translation>Das Kürzel %@ ist nicht verfügbar</translation>
    </message>
    <message>
        <source>Another program uses this shortcut.</source>
        <translation>Ein anderes Programm benutzt dieses Kürzel.</translation>
    </message>
    <message>
        <source>This desktop has no global shortcuts.</source>
        <translation>Dieser Desktop kennt keine globalen Kürzel.</translation>
    </message>
    <message>
        <source>The keyboard lacks the key of this shortcut.</source>
        <translation>Der Tastatur fehlt die Taste dieses Kürzels.</translation>
    </message>
    <message>
        <source>The keyboard lacks a modifier key of this shortcut.</source>
        <translation>Der Tastatur fehlt eine Umschalttaste dieses Kürzels.</translation>
    </message>
    <message>
        <source>Tovrel itself uses this shortcut.</source>
        <translation>Tovrel selbst benutzt dieses Kürzel.</translation>
    </message>
    <message>
        <source>The desktop refuses this shortcut.</source>
        <translation>Der Desktop lehnt dieses Kürzel ab.</translation>
    </message>
    <message>
        <source>Tovrel is disabled in this app</source>
        <translation>In dieser App ist Tovrel deaktiviert</translation>
    </message>
    <message>
        <source>The app does not receive %@ either: on this desktop no program can pass it on.</source>
        <translation>Auch die App bekommt %@ nicht: Auf diesem Desktop kann kein Programm es weitergeben.</translation>
    </message>
</context>
<context>
    <name>MenuFilterTab</name>
    <message>
        <source>Hide Menu Item</source>
        <translation>Menüpunkt ausblenden</translation>
    </message>
    <message>
        <source>Choose a real menu command from the front app.</source>
        <translation>Wähle einen Menübefehl der vorderen App.</translation>
    </message>
    <message>
        <source>No menu commands detected. Open the app you want to tune, then refresh.</source>
        <translation>Keine Menübefehle gefunden. Öffne die App, die du anpassen willst, und aktualisiere.</translation>
    </message>
    <message>
        <source>Menu Item</source>
        <translation>Menüpunkt</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Hide Selected Item</source>
        <translation>Gewählten Punkt ausblenden</translation>
    </message>
    <message>
        <source>Hidden Menu Items</source>
        <translation>Ausgeblendete Menüpunkte</translation>
    </message>
    <message>
        <source>These commands stay available in the app menu, just not in Tovrel.</source>
        <translation>Im Menü der App bleiben diese Befehle, nur in Tovrel nicht.</translation>
    </message>
    <message>
        <source>No hidden menu items</source>
        <translation>Keine Menüpunkte ausgeblendet</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>PaletteRow</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>PickerPopup</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>No matches</source>
        <translation>Nichts gefunden</translation>
    </message>
</context>
<context>
    <name>RecorderField</name>
    <message>
        <source>Clear %1</source>
        <translation>%1 löschen</translation>
    </message>
</context>
<context>
    <name>ResultList</name>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
</context>
<context>
    <name>SettingsLabels</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Palette shortcuts and display</source>
        <translation>Kürzel und Darstellung der Palette</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Apps</translation>
    </message>
    <message>
        <source>Per-app behavior rules</source>
        <translation>Regeln für einzelne Apps</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>Menu Filter</source>
        <translation>Menüfilter</translation>
    </message>
    <message>
        <source>Hide noisy menu commands</source>
        <translation>Störende Menübefehle ausblenden</translation>
    </message>
    <message>
        <source>Clean Up</source>
        <translation>Aufräumen</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Local custom actions</source>
        <translation>Eigene Aktionen auf diesem Rechner</translation>
    </message>
    <message>
        <source>Local</source>
        <translation>Lokal</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Usage and ranking</source>
        <translation>Nutzung und Rangfolge</translation>
    </message>
    <message>
        <source>Shell</source>
        <translation>Shell</translation>
    </message>
    <message>
        <source>Shell command or script path</source>
        <translation>Shell-Befehl oder Pfad eines Skripts</translation>
    </message>
    <message>
        <source>AppleScript</source>
        <translation>AppleScript</translation>
    </message>
    <message>
        <source>AppleScript text or .scpt path</source>
        <translation>AppleScript-Text oder Pfad einer .scpt-Datei</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>App, file, folder, or URL</source>
        <translation>App, Datei, Ordner oder URL</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Kurzbefehl</translation>
    </message>
    <message>
        <source>Shortcut name or URL</source>
        <translation>Name oder URL eines Kurzbefehls</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Hide Item Only</source>
        <translation>Nur diesen Punkt</translation>
    </message>
    <message>
        <source>Hide Submenus</source>
        <translation>Nur Untermenüs</translation>
    </message>
    <message>
        <source>Hide Item and Submenus</source>
        <translation>Punkt und Untermenüs</translation>
    </message>
    <message>
        <source>All Apps</source>
        <translation>Alle Apps</translation>
    </message>
    <message>
        <source>Another program keeps the preferences locked. Try again.</source>
        <translation>Ein anderes Programm hält die Einstellungen gesperrt. Versuche es noch einmal.</translation>
    </message>
    <message>
        <source>There is no room left on the disk for the preferences.</source>
        <translation>Für die Einstellungen ist auf dem Datenträger kein Platz mehr.</translation>
    </message>
    <message>
        <source>You are not allowed to change the file of the preferences.</source>
        <translation>Du darfst die Datei der Einstellungen nicht ändern.</translation>
    </message>
    <message>
        <source>A later version of Tovrel wrote the preferences, so they are left alone.</source>
        <translation>Eine spätere Version von Tovrel hat die Einstellungen geschrieben, sie bleiben unverändert.</translation>
    </message>
    <message>
        <source>Another program&apos;s file is in the place of the preferences.</source>
        <translation>An der Stelle der Einstellungen liegt die Datei eines anderen Programms.</translation>
    </message>
    <message>
        <source>Something that is no file is in the place of the preferences.</source>
        <translation>An der Stelle der Einstellungen ist etwas, das keine Datei ist.</translation>
    </message>
</context>
<context>
    <name>SettingsSidebar</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>The last change was not stored</source>
        <translation>Die letzte Änderung wurde nicht gespeichert</translation>
    </message>
</context>
<context>
    <name>ShortcutProblem</name>
    <message>
        <source>Not available: %1 Choose another one, or set it free there and refresh.</source>
        <translation>Nicht verfügbar: %1 Wähle ein anderes, oder gib es dort frei und aktualisiere.</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Open Palette</source>
        <translation>Palette öffnen</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Quit Tovrel</source>
        <translation>Tovrel beenden</translation>
    </message>
</context>
<context>
    <name>WindowMenu</name>
    <message>
        <source>Close Window</source>
        <translation>Fenster schließen</translation>
    </message>
</context>
<context>
    <name>tovrel::CustomCommandsSettings</name>
    <message>
        <source>Only show in %1</source>
        <translation>Nur in %1 zeigen</translation>
    </message>
    <message>
        <source>Only show for current app</source>
        <translation>Nur für die aktuelle App zeigen</translation>
    </message>
</context>
<context>
    <name>tovrel::HistorySettings</name>
    <message>
        <source>Used 1 time</source>
        <translation>1 Mal benutzt</translation>
    </message>
    <message>
        <source>Used %1 times</source>
        <translation>%1 Mal benutzt</translation>
    </message>
    <message>
        <source>Last used %1</source>
        <translation>Zuletzt benutzt %1</translation>
    </message>
</context>
</TS>
