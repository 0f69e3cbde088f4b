<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="launchAtLogin.info.silentStart">
        <source>launchAtLogin.info.silentStart</source>
        <translation>It starts without a window. You see nothing but its bell.</translation>
    </message>
</context>
</TS>
