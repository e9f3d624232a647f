<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- The English texts of keys that are no text themselves. Kept by hand. -->
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>KeyboardShortcuts</name>
    <message>
        <source>record_shortcut</source>
        <translation>Click to record</translation>
    </message>
    <message>
        <source>press_shortcut</source>
        <translation>Type shortcut…</translation>
    </message>
    <message>
        <source>space_key</source>
        <translation>space</translation>
    </message>
    <message>
        <source>keyboard_shortcut_used_by_menu_item</source>
        <translation>Tovrel itself uses this shortcut for “%@”.</translation>
    </message>
    <message>
        <source>keyboard_shortcut_used_by_system</source>
        <translation>The desktop or another program already has this shortcut.</translation>
    </message>
    <message>
        <source>keyboard_shortcuts_can_be_changed</source>
        <translation>The keyboard settings of your desktop say what it is used for, and can set it free.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>force_use_shortcut</source>
        <translation>Use It Anyway</translation>
    </message>
</context>
</TS>
