<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="hoard.empty.waiting">
        <source>hoard.empty.waiting</source>
        <translation>No notifications yet</translation>
    </message>
    <message id="hoard.empty.waiting.detail">
        <source>hoard.empty.waiting.detail</source>
        <translation>What your apps announce will be kept here, for as long as you like.</translation>
    </message>
    <message id="hoard.list">
        <source>hoard.list</source>
        <translation>Notifications</translation>
    </message>
    <message id="hoard.loading">
        <source>hoard.loading</source>
        <translation>Opening the hoard…</translation>
    </message>
    <message id="menu.openHoard">
        <source>menu.openHoard</source>
        <translation>Open Hoard</translation>
    </message>
    <message id="menu.quit">
        <source>menu.quit</source>
        <translation>Quit Tessarine</translation>
    </message>
</context>
</TS>
