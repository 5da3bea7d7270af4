<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-FileCopyrightText: 2026 The Melvado authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>Window</name>
    <message>
        <source>700s</source>
        <translation>Fenêtre</translation>
    </message>
</context>
</TS>
