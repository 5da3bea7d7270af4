<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-FileCopyrightText: 2026 The Melvado authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="de_AT">
<context>
    <name></name>
    <message id="700s">
        <source>: </source>
        <translation>: </translation>
    </message>
    <message id="586s">
        <source>Kind of exercise</source>
        <translation>Übungsart</translation>
    </message>
</context>
</TS>
