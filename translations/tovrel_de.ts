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
</context>
<context>
    <name>PaletteRow</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
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
</TS>
