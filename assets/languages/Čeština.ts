<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Melvado authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<TS version="2.1" language="cs_CZ">
<context>
    <name></name>
    <message id="1s">
        <source></source>
        <translation>Tisk</translation>
    </message>
    <message id="2s">
        <source></source>
        <translation>(pro čtyř- až sedmizvuky a voicingy)</translation>
    </message>
    <message id="6s">
        <source></source>
        <extracomment>first part of the version line, before 699 and the number</extracomment>
        <translation>vmod17</translation>
    </message>
    <message id="8s">
        <source></source>
        <extracomment>second line of the question 495</extracomment>
        <translation>(Dříve uložený stav se tím přepíše.)</translation>
    </message>
    <message id="41s">
        <source></source>
        <extracomment>a number from 2 to 5 stands before it</extracomment>
        <translation>okt.</translation>
    </message>
    <message id="45s">
        <source></source>
        <translation>Obouruční voicingy</translation>
    </message>
    <message id="49s">
        <source></source>
        <translation>Troj- až sedmizvuky</translation>
    </message>
    <message id="51s">
        <source></source>
        <translation>Trojzvuky</translation>
    </message>
    <message id="56s">
        <source></source>
        <translation>Čtyř- až sedmizvuky/obouruční voicingy: určete skupinu akordů</translation>
    </message>
    <message id="57s">
        <source></source>
        <translation>Čtyřzvuky</translation>
    </message>
    <message id="60s">
        <source></source>
        <translation>Pětizvuky</translation>
    </message>
    <message id="62s">
        <source></source>
        <translation>Šestizvuky</translation>
    </message>
    <message id="64s">
        <source></source>
        <translation>Sedmizvuky</translation>
    </message>
    <message id="78s">
        <source></source>
        <extracomment>how one task follows another</extracomment>
        <translation>Sled úloh</translation>
    </message>
    <message id="84s">
        <source></source>
        <extracomment>direction of an arpeggio</extracomment>
        <translation>sestupně</translation>
    </message>
    <message id="87s">
        <source></source>
        <extracomment>whether the root is accented</extracomment>
        <translation>Zákl. tón akordu</translation>
    </message>
    <message id="88s">
        <source></source>
        <extracomment>chords in one task</extracomment>
        <translation>Počet akordů</translation>
    </message>
    <message id="95s">
        <source></source>
        <extracomment>heading of the list of chords; 700 follows</extracomment>
        <translation>Akord</translation>
    </message>
    <message id="97s">
        <source></source>
        <extracomment>what is asked for</extracomment>
        <translation>Akord</translation>
    </message>
    <message id="107s">
        <source></source>
        <translation>Rozsah</translation>
    </message>
    <message id="109s">
        <source></source>
        <extracomment>a blank and 700 follow</extracomment>
        <translation>Uživatel</translation>
    </message>
    <message id="114s">
        <source></source>
        <translation>Zápis akordů</translation>
    </message>
    <message id="116s">
        <source></source>
        <translation>Tempo arpeggia</translation>
    </message>
    <message id="129s">
        <source></source>
        <extracomment>" 1" follows</extracomment>
        <translation>Úloha</translation>
    </message>
    <message id="130s">
        <source></source>
        <translation>Trénink dokončen</translation>
    </message>
    <message id="133s">
        <source></source>
        <extracomment>direction of an arpeggio</extracomment>
        <translation>vzestupně</translation>
    </message>
    <message id="135s">
        <source></source>
        <translation>Vybráno</translation>
    </message>
    <message id="136s">
        <source></source>
        <translation>Volné cvičení</translation>
    </message>
    <message id="138s">
        <source></source>
        <translation>Materiál</translation>
    </message>
    <message id="139s">
        <source></source>
        <extracomment>on the OK button while the selection is incomplete</extracomment>
        <translation>Výběr??</translation>
    </message>
    <message id="140s">
        <source></source>
        <translation>K výběru</translation>
    </message>
    <message id="141s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>volitelné</translation>
    </message>
    <message id="142s">
        <source></source>
        <extracomment>the tasks follow by themselves</extracomment>
        <translation>automaticky</translation>
    </message>
    <message id="153s">
        <source></source>
        <translation>Poloha</translation>
    </message>
    <message id="154s">
        <source></source>
        <translation>Určit</translation>
    </message>
    <message id="156s">
        <source></source>
        <translation>s akcentem</translation>
    </message>
    <message id="160s">
        <source></source>
        <translation>Tvořit</translation>
    </message>
    <message id="189s">
        <source></source>
        <extracomment>a blank and 700 follow</extracomment>
        <translation>Datum</translation>
    </message>
    <message id="194s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>přímo</translation>
    </message>
    <message id="196s">
        <source></source>
        <translation>Uložená nastavení nelze přečíst. Začněte prosím nový trénink.</translation>
    </message>
    <message id="199s">
        <source></source>
        <extracomment>short form of 201 for a small label</extracomment>
        <translation>Dom. 7, alt.</translation>
    </message>
    <message id="200s">
        <source></source>
        <translation>Dominantní 7</translation>
    </message>
    <message id="201s">
        <source></source>
        <translation>Dominantní 7, alt.</translation>
    </message>
    <message id="221s">
        <source></source>
        <extracomment>window title of the settings screen, after 348 and 700; begins with the blank after 700</extracomment>
        <translation> Nastavení</translation>
    </message>
    <message id="223s">
        <source></source>
        <translation>KONEC</translation>
    </message>
    <message id="224s">
        <source></source>
        <extracomment>window title of the results screen, after 348 and 700; begins with the blank after 700</extracomment>
        <translation> Výsledky</translation>
    </message>
    <message id="232s">
        <source></source>
        <translation>Špatně</translation>
    </message>
    <message id="238s">
        <source></source>
        <translation>pevné (a¹ = 440 Hz)</translation>
    </message>
    <message id="243s">
        <source></source>
        <translation>Ladění</translation>
    </message>
    <message id="275s">
        <source></source>
        <translation>Celkový výsledek</translation>
    </message>
    <message id="277s">
        <source></source>
        <extracomment>of the root of the tasks and of the timbre</extracomment>
        <translation>beze změny</translation>
    </message>
    <message id="278s">
        <source></source>
        <translation>současně (bez arpeggia)</translation>
    </message>
    <message id="287s">
        <source></source>
        <extracomment>window title of the first screen, after 347 and 700; begins with the blank after 700</extracomment>
        <translation> Start</translation>
    </message>
    <message id="297s">
        <source></source>
        <translation>Základní tón</translation>
    </message>
    <message id="301s">
        <source></source>
        <extracomment>what is asked for</extracomment>
        <translation>Skupina</translation>
    </message>
    <message id="302s">
        <source></source>
        <translation>Skupiny akordů</translation>
    </message>
    <message id="312s">
        <source></source>
        <translation>Polozmenšený</translation>
    </message>
    <message id="319s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>vysoká</translation>
    </message>
    <message id="347s">
        <source></source>
        <extracomment>title of the module</extracomment>
        <translation>Určování jazzových akordů</translation>
    </message>
    <message id="348s">
        <source></source>
        <extracomment>title of the exercise</extracomment>
        <translation>Určování jazzových akordů</translation>
    </message>
    <message id="364s">
        <source></source>
        <translation>Druhy akordů</translation>
    </message>
    <message id="365s">
        <source></source>
        <translation>Barva zvuku</translation>
    </message>
    <message id="366s">
        <source></source>
        <translation>Kontrola zvuku</translation>
    </message>
    <message id="371s">
        <source></source>
        <translation>pomalu</translation>
    </message>
    <message id="372s">
        <source></source>
        <translation>Hlasitost</translation>
    </message>
    <message id="374s">
        <source></source>
        <extracomment>a number follows</extracomment>
        <translation>Pole č.:</translation>
    </message>
    <message id="379s">
        <source></source>
        <translation>Dur maj7</translation>
    </message>
    <message id="380s">
        <source></source>
        <translation>Dur maj7, alt.</translation>
    </message>
    <message id="383s">
        <source></source>
        <extracomment>the next task is asked for</extracomment>
        <translation>ručně</translation>
    </message>
    <message id="394s">
        <source></source>
        <translation>min</translation>
    </message>
    <message id="395s">
        <source></source>
        <translation>alespoň 1!</translation>
    </message>
    <message id="396s">
        <source></source>
        <translation>alespoň 2!</translation>
    </message>
    <message id="400s">
        <source></source>
        <translation>středně</translation>
    </message>
    <message id="409s">
        <source></source>
        <translation>Moll 7</translation>
    </message>
    <message id="410s">
        <source></source>
        <translation>Tónické moll</translation>
    </message>
    <message id="420s">
        <source></source>
        <translation>Další úloha</translation>
    </message>
    <message id="424s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>nízká</translation>
    </message>
    <message id="426s">
        <source></source>
        <extracomment>a blank and a number follow</extracomment>
        <translation>Č.</translation>
    </message>
    <message id="429s">
        <source></source>
        <translation>jen značka</translation>
    </message>
    <message id="432s">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="438s">
        <source></source>
        <translation>Zkouška</translation>
    </message>
    <message id="461s">
        <source></source>
        <extracomment>the minutes with 394 and the seconds with 480 follow</extracomment>
        <translation>Zbývá:</translation>
    </message>
    <message id="462s">
        <source></source>
        <extracomment>a blank and a number follow</extracomment>
        <translation>Zbývá úloh:</translation>
    </message>
    <message id="468s">
        <source></source>
        <translation>Správně</translation>
    </message>
    <message id="469s">
        <source></source>
        <extracomment>of an arpeggio</extracomment>
        <translation>Směr</translation>
    </message>
    <message id="470s">
        <source></source>
        <translation>rychle</translation>
    </message>
    <message id="476s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>velmi vysoká</translation>
    </message>
    <message id="477s">
        <source></source>
        <translation>velmi pomalu</translation>
    </message>
    <message id="478s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>velmi nízká</translation>
    </message>
    <message id="479s">
        <source></source>
        <translation>velmi rychle</translation>
    </message>
    <message id="480s">
        <source></source>
        <translation>s</translation>
    </message>
    <message id="495s">
        <source></source>
        <translation>Uložit stav tréninku?</translation>
    </message>
    <message id="496s">
        <source></source>
        <translation>Hrát</translation>
    </message>
    <message id="499s">
        <source></source>
        <extracomment>a number from 1 to 7 follows</extracomment>
        <translation>Hlas</translation>
    </message>
    <message id="507s">
        <source></source>
        <translation>noty + značka</translation>
    </message>
    <message id="547s">
        <source></source>
        <translation>Tempo</translation>
    </message>
    <message id="550s">
        <source></source>
        <translation>Test</translation>
    </message>
    <message id="551s">
        <source></source>
        <translation>Zobrazit stav testu</translation>
    </message>
    <message id="552s">
        <source></source>
        <translation>Skrýt stav testu</translation>
    </message>
    <message id="564s">
        <source></source>
        <translation>Trénink (nový)</translation>
    </message>
    <message id="565s">
        <source></source>
        <translation>Trénink (pokračování)</translation>
    </message>
    <message id="566s">
        <source></source>
        <translation>Stav tréninku</translation>
    </message>
    <message id="586s">
        <source></source>
        <translation>Druh cvičení</translation>
    </message>
    <message id="587s">
        <source></source>
        <translation>Režim cvičení</translation>
    </message>
    <message id="588s">
        <source></source>
        <translation>bez akcentu</translation>
    </message>
    <message id="589s">
        <source></source>
        <extracomment>each voice has a timbre of its own</extracomment>
        <translation>různá</translation>
    </message>
    <message id="603s">
        <source></source>
        <translation>proměnné</translation>
    </message>
    <message id="609s">
        <source></source>
        <translation>Zmenšený</translation>
    </message>
    <message id="615s">
        <source></source>
        <translation>odspodu nahoru</translation>
    </message>
    <message id="623s">
        <source></source>
        <extracomment>of the root of the tasks</extracomment>
        <translation>měnící se</translation>
    </message>
    <message id="624s">
        <source></source>
        <extracomment>direction of an arpeggio</extracomment>
        <translation>náhodně</translation>
    </message>
    <message id="625s">
        <source></source>
        <translation>Dále</translation>
    </message>
    <message id="629s">
        <source></source>
        <translation>Opakovat</translation>
    </message>
    <message id="632s">
        <source></source>
        <translation>Opakovat (kontrola)</translation>
    </message>
    <message id="638s">
        <source></source>
        <translation>Příliš těžké!</translation>
    </message>
    <message id="640s">
        <source></source>
        <translation>Zpět</translation>
    </message>
    <message id="671s">
        <source></source>
        <extracomment>MIDI note 36</extracomment>
        <translation>C</translation>
    </message>
    <message id="672s">
        <source></source>
        <extracomment>MIDI note 48</extracomment>
        <translation>c</translation>
    </message>
    <message id="673s">
        <source></source>
        <extracomment>MIDI note 60</extracomment>
        <translation>c¹</translation>
    </message>
    <message id="674s">
        <source></source>
        <extracomment>MIDI note 72</extracomment>
        <translation>c²</translation>
    </message>
    <message id="675s">
        <source></source>
        <extracomment>MIDI note 84</extracomment>
        <translation>c³</translation>
    </message>
    <message id="676s">
        <source></source>
        <extracomment>MIDI note 96</extracomment>
        <translation>c⁴</translation>
    </message>
    <message id="699s">
        <source></source>
        <extracomment>the version number follows</extracomment>
        <translation>verze</translation>
    </message>
    <message id="700s">
        <source></source>
        <extracomment>stands between the two parts of a window title and after the heading 95</extracomment>
        <translation>:</translation>
    </message>
    <message id="702s">
        <source></source>
        <extracomment>between two notes</extracomment>
        <translation>až</translation>
    </message>
    <message id="720s">
        <source></source>
        <extracomment>first of four lines of one message</extracomment>
        <translation>Bohužel došlo k chybě.</translation>
    </message>
    <message id="721s">
        <source></source>
        <extracomment>second of four lines</extracomment>
        <translation>Je zaznamenána v protokolu programu Melvado.</translation>
    </message>
    <message id="722s">
        <source></source>
        <extracomment>third of four lines</extracomment>
        <translation>Rozpracovaný krok se nyní přeruší a okno se zavře.</translation>
    </message>
    <message id="723s">
        <source></source>
        <extracomment>last of four lines</extracomment>
        <translation>Zkuste to prosím znovu. Pokud to nepomůže, obraťte se na svého učitele.</translation>
    </message>
    <message id="726s">
        <source></source>
        <translation>Okamžik, prosím!</translation>
    </message>
    <message id="9001s">
        <source></source>
        <translation>Ano</translation>
    </message>
    <message id="9002s">
        <source></source>
        <translation>Ne</translation>
    </message>
    <message id="9003s">
        <source></source>
        <translation>V programu došlo k chybě, kterou nelze napravit; program se ukončí.</translation>
    </message>
    <message id="9011s">
        <source></source>
        <translation>Pro test není označen žádný rámeček. Klikněte pravým tlačítkem myši na rámečky, jejichž nastavení má test určovat, a zvolte „Zkouška“.</translation>
    </message>
    <message id="9012s">
        <source></source>
        <translation>Soubor s testem se nepodařilo zapsat.</translation>
    </message>
    <message id="9013s">
        <source></source>
        <translation>Soubor s testem nelze přečíst. Nastavení zůstala beze změny.</translation>
    </message>
    <message id="9014s">
        <source></source>
        <translation>Řádek</translation>
    </message>
    <message id="9015s">
        <source></source>
        <translation>sloupec</translation>
    </message>
    <message id="9016s">
        <source></source>
        <translation>Tato nastavení ze souboru s testem zde neexistují; byla vynechána:</translation>
    </message>
    <message id="9017s">
        <source></source>
        <translation>vybrat vše</translation>
    </message>
    <message id="9018s">
        <source></source>
        <translation>vrátit vše zpět</translation>
    </message>
    <message id="9101s">
        <source></source>
        <translation>Tréninky uložené v %1 pocházejí z novější verze tohoto programu. Zůstávají přesně tak, jak jsou. Můžete cvičit, ale co nyní uložíte, se po ukončení programu ztratí. Nainstalujte prosím novější verzi.</translation>
    </message>
    <message id="9102s">
        <source></source>
        <translation>Místo pro uložené tréninky, %1, nelze použít (%2). Můžete cvičit, ale co nyní uložíte, se po ukončení programu ztratí. Zkontrolujte prosím, zda složka existuje a zda do ní smíte zapisovat, a pak program spusťte znovu.</translation>
    </message>
    <message id="9103s">
        <source></source>
        <translation>Tréninky uložené v %1 právě používá jiný program, který je včas neuvolnil. Nic se nezměnilo. Zavřete prosím druhý program a zkuste to znovu.</translation>
    </message>
    <message id="9104s">
        <source></source>
        <translation>Tréninky uložené v %1 lze číst, ale ne měnit. Zůstávají tak, jak jsou. Můžete cvičit, ale co nyní uložíte, se po ukončení programu ztratí. Povolte prosím zápis do souboru i do jeho složky a pak program spusťte znovu.</translation>
    </message>
    <message id="9105s">
        <source></source>
        <translation>Data se nepodařilo uložit do %1: disk je pravděpodobně plný (%2). Co bylo uloženo dříve, je zachováno a nová data se uchovají do ukončení programu. Uvolněte prosím místo na disku a uložte je znovu.</translation>
    </message>
    <message id="9106s">
        <source></source>
        <translation>Soubor s uloženými tréninky, %1, je poškozený a nepodařilo se ho přečíst. Je uschován pod názvem %2 a byl založen nový, prázdný soubor. Máte-li záložní kopii souboru, vraťte ji v okně Melvado příkazem „Obnovit zálohu…“.</translation>
    </message>
    <message id="9107s">
        <source></source>
        <translation>Jeden uložený záznam (%1) je poškozený a nepodařilo se ho přečíst. Je uschován pod názvem %2. Nastavení začínají s obvyklými hodnotami; vše ostatní, co bylo uloženo, je zachováno.</translation>
    </message>
    <message id="9108s">
        <source></source>
        <translation>Server s uloženými tréninky, %1, není dostupný (%2). Můžete cvičit. Co nyní uložíte, zůstane v tomto počítači a na server se přenese, jakmile bude znovu dostupný, i když program spustíte jiný den.</translation>
    </message>
    <message id="9109s">
        <source></source>
        <translation>Tréninky uložené v %1 teď nelze přečíst (%2). Nic se nezměnilo. Můžete cvičit; chcete-li v nich pokračovat, spusťte prosím program znovu později.</translation>
    </message>
    <message id="9110s">
        <source></source>
        <translation>Adresu serveru s uloženými tréninky (MELVADO_STORE) nelze přečíst. Nic nebylo vytvořeno ani změněno. Můžete cvičit, ale co nyní uložíte, se koncem programu ztratí. Napište ji ve tvaru postgresql://uživatel:heslo@počítač/databáze a spusťte program znovu.</translation>
    </message>
    <message id="9111s">
        <source></source>
        <translation>Server s uloženými tréninky, %1, nelze použít (%2). Můžete cvičit, ale co nyní uložíte, se po ukončení programu ztratí. Obraťte se prosím na osobu, která se stará o počítače, nebo program spusťte znovu později.</translation>
    </message>
    <message id="9112s">
        <source></source>
        <translation>Trénink, který zůstal v tomto počítači, dokud server nebyl dostupný, byl nyní přenesen na %1. Mezitím tam byl uložen novější, který platí; trénink z tohoto počítače je uložen vedle něj pod názvem, který končí na %2. Obnovit jej může ten, kdo se o server stará.</translation>
    </message>
    <message id="9113s">
        <source></source>
        <translation>Co jste uložili, se v tuto chvíli nepodařilo zapsat do %1 (%2). Zůstává to v tomto počítači a přenese se tam, jakmile to bude možné, i když program spustíte jiný den.</translation>
    </message>
    <message id="9114s">
        <source></source>
        <translation>Uživatele %1, který byl přidán v tomto počítači, dokud server nebyl dostupný, se tam nepodařilo přidat: číslo %2 patří uživateli %3. Zkontrolujte prosím číslo a přidejte uživatele znovu.</translation>
    </message>
    <message id="9117s">
        <source></source>
        <translation>Soubor, ve kterém tento počítač uchovává to, co server ještě nepřevzal, %1, je poškozený nebo pochází z jiné verze programu a nepodařilo se ho přečíst. Je uschován pod názvem %2 a byl založen nový, prázdný soubor. Oznamte to prosím osobě, která se stará o počítače.</translation>
    </message>
    <message id="9120s">
        <source></source>
        <translation>Soubor %1 není zálohou uložených tréninků. Nic nebylo změněno.</translation>
    </message>
    <message id="9121s">
        <source></source>
        <translation>Záloha %1 je poškozená (%2). Nic nebylo změněno.</translation>
    </message>
    <message id="9122s">
        <source></source>
        <translation>Zálohu %1 zapsala novější verze tohoto programu. Nic nebylo změněno. Nainstalujte prosím novější verzi.</translation>
    </message>
    <message id="9123s">
        <source></source>
        <translation>Uložené tréninky v %1 právě používá jiný program. Nic nebylo změněno. Zavřete prosím cvičení a každý jiný program, který je používá, a zkuste to znovu.</translation>
    </message>
    <message id="9124s">
        <source></source>
        <translation>Zálohu %1 se nepodařilo obnovit (%2). Co bylo uloženo, je tam stále tak, jak to bylo.</translation>
    </message>
    <message id="9125s">
        <source></source>
        <translation>Soubor %1 je ten, který se právě používá. Zvolte prosím jeho zálohu.</translation>
    </message>
    <message id="9151s">
        <source></source>
        <translation>Cvičení zůstane bez zvuku: soubor se zvuky nástrojů (SoundFont) je poškozený: %1. Nainstalujte znovu balíček fluid-soundfont-gm a pak program spusťte znovu.</translation>
    </message>
    <message id="9152s">
        <source></source>
        <translation>Cvičení zůstane bez zvuku: chybí soubor se zvuky nástrojů (SoundFont). Nainstalujte balíček fluid-soundfont-gm a pak program spusťte znovu.</translation>
    </message>
    <message id="9153s">
        <source></source>
        <translation>Cvičení zůstane bez zvuku: nebyl nalezen žádný zvukový výstup (vyzkoušeno: %1). Zkontrolujte, zda jsou reproduktory nebo sluchátka připojeny a vybrány v nastavení zvuku systému, a pak program spusťte znovu.</translation>
    </message>
    <message id="9154s">
        <source></source>
        <translation>Zvukový výstup přestal fungovat. Zkontrolujte reproduktory nebo sluchátka a nastavení zvuku systému a zkuste to znovu.</translation>
    </message>
    <message id="9155s">
        <source></source>
        <translation>Zařízení MIDI „%1“ už není k dispozici. Zkontrolujte jeho kabel a zda je zapnuté a zkuste to znovu.</translation>
    </message>
    <message id="9156s">
        <source></source>
        <translation>Zařízení MIDI číslo %1 neexistuje; počet dostupných zařízení: %2. Vyberte v programu Melvado jiné zařízení MIDI.</translation>
    </message>
    <message id="9157s">
        <source></source>
        <translation>Zvolený SoundFont %1 chybí nebo je poškozený. Místo něj zní %2. Vyberte v programu Melvado jiný SoundFont.</translation>
    </message>
    <message id="9201s">
        <source></source>
        <translation>Záznam o cvičení se nepodařilo uložit do složky %1 (%2). Místo toho byl uložen jako %3. Zkontrolujte prosím, zda složka existuje, zda do ní smíte zapisovat a zda disk není plný.</translation>
    </message>
    <message id="9202s">
        <source></source>
        <translation>Záznam o cvičení se nepodařilo uložit ani do složky %1 (%2), ani do vlastní složky programu. Uvolněte místo na disku a zkuste to znovu, nebo zvolte jinou složku. Do té doby je uschován, ale ne déle než do konce programu.</translation>
    </message>
    <message id="9203s">
        <source></source>
        <translation>Zkusit znovu</translation>
    </message>
    <message id="9204s">
        <source></source>
        <translation>Jiná složka…</translation>
    </message>
    <message id="9205s">
        <source></source>
        <translation>Vzdát se záznamu</translation>
    </message>
    <message id="9206s">
        <source></source>
        <translation>Uložit záznam</translation>
    </message>
    <message id="9207s">
        <source></source>
        <translation>Záznam se nepodařilo uložit jako %1 (%2).</translation>
    </message>
    <message id="9208s">
        <source></source>
        <translation>Obnovit zálohu…</translation>
    </message>
    <message id="9209s">
        <source></source>
        <translation>Zvolit zálohu</translation>
    </message>
    <message id="9210s">
        <source></source>
        <translation>Dát zálohu %1 (naposledy změněna: %2) na místo %3? Uživatelé, nastavení, tréninky a protokol pak budou ze zálohy. Co je uloženo teď, zůstane uschováno pod jiným názvem.</translation>
    </message>
    <message id="9211s">
        <source></source>
        <translation>Záloha %1 byla obnovena. Co bylo uloženo předtím, je uschováno pod názvem %2.</translation>
    </message>
    <message id="9251s">
        <source></source>
        <translation>Soubor jazyka %1 nelze přečíst, a proto se vynechá. Pokud patří k programu, nainstalujte prosím program znovu.</translation>
    </message>
    <message id="9252s">
        <source></source>
        <translation>Pro jazyk tohoto programu nebyly nalezeny žádné texty; proto místo nich vidíte „VOID“. Nainstalujte prosím program znovu nebo ho spusťte v jiném jazyce.</translation>
    </message>
    <message id="9253s">
        <source></source>
        <translation>Soubor jazyka %1 je větší, než jazyk může být (nejvýše %2 KB), a vynechává se.</translation>
    </message>
    <message id="9254s">
        <source></source>
        <translation>Soubor jazyka %1 požaduje další soubory a vynechává se. Všechna slova jazyka musí být v jednom souboru.</translation>
    </message>
    <message id="9255s">
        <source></source>
        <translation>Soubor jazyka %1 je poškozený a vynechává se. Vytvořte jej znovu ze zdroje, nebo jej odstraňte ze složky.</translation>
    </message>
    <message id="9256s">
        <source></source>
        <translation>Další soubory jazyků mají chyby a také se vynechávají: %1.</translation>
    </message>
    <message id="9257s">
        <source></source>
        <translation>Melvado je už otevřené, ale neodpovídá. Pokud je jen zaneprázdněné, počkejte. Chcete je ukončit a spustit znovu? Co tam ještě není uloženo, se může ztratit.</translation>
    </message>
    <message id="9258s">
        <source></source>
        <translation>Cvičení je už otevřené, ale neodpovídá. Pokud je jen zaneprázdněné, počkejte. Chcete je ukončit a spustit znovu? Co tam ještě není uloženo, se může ztratit.</translation>
    </message>
    <message id="9259s">
        <source></source>
        <translation>Nepodařilo se je ukončit. Odhlaste se z tohoto počítače a znovu se přihlaste, pak spusťte program ještě jednou.</translation>
    </message>
    <message id="9260s">
        <source></source>
        <translation>Cvičení neodpovídá. Pokud je jen zaneprázdněné, počkejte. Chcete je ukončit? Co tam ještě není uloženo, se může ztratit.</translation>
    </message>
    <message id="9301s">
        <source></source>
        <translation>Trénink se nepodařilo uložit. Zkusit to znovu?</translation>
    </message>
    <message id="9302s">
        <source></source>
        <translation>Není nastavena žádná tiskárna. Stránka byla uložena jako %1.</translation>
    </message>
    <message id="9303s">
        <source></source>
        <translation>Tiskárna %1 stránku nepřijala: %2. Zkontrolujte, zda je zapnutá a připojená, a tiskněte znovu.</translation>
    </message>
    <message id="9304s">
        <source></source>
        <translation>Tiskárna %1 není připravena. Zkontrolujte, zda je zapnutá a připojená a zda má papír, a tiskněte znovu.</translation>
    </message>
    <message id="9305s">
        <source></source>
        <translation>Není nastavena žádná tiskárna a stránku se nepodařilo uložit ani jako soubor do složky %1 (%2). Zkontrolujte, zda do ní smíte zapisovat a zda disk není plný.</translation>
    </message>
    <message id="9306s">
        <source></source>
        <translation>Zvuk se ztratil. Hodiny stojí a nic se nezapočítává. Jakmile se zvuk vrátí, cvičení bude samo pokračovat a otevřená úloha zazní ještě jednou. Zkontrolujte reproduktory, sluchátka nebo zařízení MIDI.</translation>
    </message>
    <message id="9391s">
        <source></source>
        <translation>Obsah</translation>
    </message>
    <message id="9392s">
        <source></source>
        <translation>Zpět</translation>
    </message>
    <message id="9393s">
        <source></source>
        <translation>Vpřed</translation>
    </message>
    <message id="9394s">
        <source></source>
        <translation>Stránka nápovědy „%1“ nebyla nalezena. Stránky nápovědy se hledají v: %2</translation>
    </message>
    <message id="9401s">
        <source></source>
        <translation>Sluchový trénink</translation>
    </message>
    <message id="9402s">
        <source></source>
        <translation>Kdo cvičí?</translation>
    </message>
    <message id="9403s">
        <source></source>
        <translation>Nikdo (beze jména)</translation>
    </message>
    <message id="9404s">
        <source></source>
        <translation>Přidat…</translation>
    </message>
    <message id="9405s">
        <source></source>
        <translation>Změnit…</translation>
    </message>
    <message id="9406s">
        <source></source>
        <translation>Odebrat…</translation>
    </message>
    <message id="9407s">
        <source></source>
        <translation>Jazyk</translation>
    </message>
    <message id="9408s">
        <source></source>
        <translation>Zvukový výstup</translation>
    </message>
    <message id="9409s">
        <source></source>
        <translation>Vestavěný syntezátor</translation>
    </message>
    <message id="9410s">
        <source></source>
        <translation>%1 (nepřipojeno)</translation>
    </message>
    <message id="9411s">
        <source></source>
        <translation>Vyzkoušet zvuk</translation>
    </message>
    <message id="9412s">
        <source></source>
        <translation>Vybrat SoundFont…</translation>
    </message>
    <message id="9413s">
        <source></source>
        <translation>SoundFont systému</translation>
    </message>
    <message id="9414s">
        <source></source>
        <translation>SoundFont: %1</translation>
    </message>
    <message id="9415s">
        <source></source>
        <translation>Zní SoundFont systému.</translation>
    </message>
    <message id="9416s">
        <source></source>
        <translation>Zařízení %1 není připojeno. Místo něj zní vestavěný syntezátor.</translation>
    </message>
    <message id="9417s">
        <source></source>
        <translation>Hraje se akord…</translation>
    </message>
    <message id="9418s">
        <source></source>
        <translation>Zkouška zvuku zahraje akord a řekne, co se s ním stalo.</translation>
    </message>
    <message id="9419s">
        <source></source>
        <translation>Protokol</translation>
    </message>
    <message id="9420s">
        <source></source>
        <translation>Ukončit</translation>
    </message>
    <message id="9421s">
        <source></source>
        <translation>Nápověda</translation>
    </message>
    <message id="9422s">
        <source></source>
        <translation>Spouští se…</translation>
    </message>
    <message id="9423s">
        <source></source>
        <translation>Nový uživatel</translation>
    </message>
    <message id="9424s">
        <source></source>
        <translation>Změna údajů uživatele</translation>
    </message>
    <message id="9425s">
        <source></source>
        <translation>Příjmení</translation>
    </message>
    <message id="9426s">
        <source></source>
        <translation>Jméno</translation>
    </message>
    <message id="9427s">
        <source></source>
        <translation>Studijní číslo</translation>
    </message>
    <message id="9428s">
        <source></source>
        <translation>Zrušit</translation>
    </message>
    <message id="9429s">
        <source></source>
        <translation>Odebrat ze seznamu uživatele %1? Uložené tréninky zůstanou: kdo bude s tímto číslem znovu přidán, bude v nich pokračovat.</translation>
    </message>
    <message id="9430s">
        <source></source>
        <translation>SoundFont %1 chybí. Místo něj zní SoundFont systému.</translation>
    </message>
    <message id="9431s">
        <source></source>
        <translation>Zadejte prosím studijní číslo: pod ním se tréninky ukládají.</translation>
    </message>
    <message id="9432s">
        <source></source>
        <translation>Studijní číslo je příliš dlouhé. Nejvyšší počet znaků: %1.</translation>
    </message>
    <message id="9433s">
        <source></source>
        <translation>Jméno je příliš dlouhé. Nejvyšší počet znaků příjmení i jména: %1.</translation>
    </message>
    <message id="9434s">
        <source></source>
        <translation>„%1“ nemůže být studijní číslo. Zvolte prosím jiné.</translation>
    </message>
    <message id="9435s">
        <source></source>
        <translation>Studijní číslo %1 už v seznamu je. Vyberte tohoto uživatele, nebo zadejte jiné číslo.</translation>
    </message>
    <message id="9436s">
        <source></source>
        <translation>Soubor %1 není SoundFont, který by šlo přehrát, nebo je poškozený. SoundFont zůstává, jak byl.</translation>
    </message>
    <message id="9437s">
        <source></source>
        <translation>Výběr SoundFontu</translation>
    </message>
    <message id="9441s">
        <source></source>
        <translation>Program neopustil žádný zvuk.</translation>
    </message>
    <message id="9442s">
        <source></source>
        <translation>Akord opustil program: vestavěný syntezátor hrál přes %2 se SoundFontem %3; počet tónů: %1.</translation>
    </message>
    <message id="9443s">
        <source></source>
        <translation>Akord opustil program: vestavěný syntezátor hrál přes %1 se SoundFontem %2 při úrovni %3 %.</translation>
    </message>
    <message id="9444s">
        <source></source>
        <translation>Pokud přesto nic neslyšíte: zapněte reproduktory nebo sluchátka, zesilte je a vyberte je v nastavení zvuku systému.</translation>
    </message>
    <message id="9445s">
        <source></source>
        <translation>Syntezátor nebyl včas připraven: počítač je velmi zaneprázdněn, nebo je SoundFont velmi velký. Zkuste to znovu.</translation>
    </message>
    <message id="9446s">
        <source></source>
        <translation>Výstup %1 byl otevřen, ale nepřijal žádný zvuk. Zvukovou kartu možná drží jiný program: zavřete ho, nebo vyberte v nastavení zvuku systému jiný výstup.</translation>
    </message>
    <message id="9447s">
        <source></source>
        <translation>SoundFont %1 neobsahuje zvuk klavíru. Vyberte jiný SoundFont.</translation>
    </message>
    <message id="9448s">
        <source></source>
        <translation>Akord opustil program: zařízení MIDI „%1“ přijalo zprávy bez chyby; jejich počet: %2.</translation>
    </message>
    <message id="9449s">
        <source></source>
        <translation>Pokud přesto nic neslyšíte: zkontrolujte, zda je zařízení zapnuté a dost hlasité a zda hraje to, co přichází na kanál 1.</translation>
    </message>
    <message id="9450s">
        <source></source>
        <translation>Zařízení MIDI „%1“ není dostupné. Zkontrolujte jeho kabel a zda je zapnuté, nebo vyberte jiný výstup.</translation>
    </message>
    <message id="9451s">
        <source></source>
        <translation>Cvičení neočekávaně skončilo. Co bylo uloženo dříve, je zachováno. Chcete vidět konec protokolu?</translation>
    </message>
    <message id="9452s">
        <source></source>
        <translation>Cvičení už je otevřené. Po stisknutí OK se jeho okno přesune do popředí.</translation>
    </message>
    <message id="9453s">
        <source></source>
        <translation>Cvičení se nepodařilo spustit (%1). Nainstalujte program znovu; pokud to nepomůže, pošlete hlášení o chybě z protokolu.</translation>
    </message>
    <message id="9455s">
        <source></source>
        <translation>Čas</translation>
    </message>
    <message id="9456s">
        <source></source>
        <translation>Místo</translation>
    </message>
    <message id="9457s">
        <source></source>
        <translation>Číslo</translation>
    </message>
    <message id="9458s">
        <source></source>
        <translation>Text</translation>
    </message>
    <message id="9459s">
        <source></source>
        <translation>Zdroj</translation>
    </message>
    <message id="9460s">
        <source></source>
        <translation>Obnovit</translation>
    </message>
    <message id="9461s">
        <source></source>
        <translation>Kopírovat jako hlášení o chybě</translation>
    </message>
    <message id="9462s">
        <source></source>
        <translation>Zavřít</translation>
    </message>
    <message id="9463s">
        <source></source>
        <translation>Hlášení je ve schránce a lze je vložit do e-mailu.</translation>
    </message>
    <message id="9464s">
        <source></source>
        <translation>Protokol je prázdný.</translation>
    </message>
    <message id="9467s">
        <source></source>
        <translation>Došlo k chybě, se kterou program nepočítal (%1). Je v protokolu; můžete pokračovat. Pošlete prosím hlášení o chybě z protokolu.</translation>
    </message>
    <message id="9502s">
        <source></source>
        <translation>Test ještě neskončil. Ukončit ho bez výsledků?</translation>
    </message>
    <message id="9531s">
        <source></source>
        <translation>Zvuk se připravuje…</translation>
    </message>
    <message id="9532s">
        <source></source>
        <translation>Nic nebylo možné přehrát, protože zvukový výstup není připraven. Zkontrolujte reproduktory, sluchátka nebo zařízení MIDI a zkuste to znovu. Nic nebylo započítáno.</translation>
    </message>
    <message id="9551s">
        <source></source>
        <translation>Vybrat druh akordu</translation>
    </message>
    <message id="9552s">
        <source></source>
        <translation>Vybrané druhy akordů</translation>
    </message>
    <message id="9553s">
        <source></source>
        <translation>Vybrat skupinu akordů</translation>
    </message>
    <message id="9554s">
        <source></source>
        <translation>Vybrané skupiny akordů</translation>
    </message>
    <message id="9555s">
        <source></source>
        <translation>Režim cvičení „%1“ určuje tato nastavení. Zůstávají, jak jsou:</translation>
    </message>
    <message id="9560s">
        <source></source>
        <translation>Akordy: %1</translation>
    </message>
    <message id="9561s">
        <source></source>
        <translation>Akordy: %1 z %2, pokaždé znovu losované</translation>
    </message>
    <message id="9562s">
        <source></source>
        <translation>Úlohy: %1, nejvýše %2 min</translation>
    </message>
    <message id="9563s">
        <source></source>
        <translation>Zbývá vybrat: druhy akordů (alespoň 1)</translation>
    </message>
    <message id="9564s">
        <source></source>
        <translation>Zbývá vybrat: skupiny akordů (%1 z alespoň %2)</translation>
    </message>
    <message id="9565s">
        <source></source>
        <translation>Kontrola zvuku: jen s úplným výběrem</translation>
    </message>
    <message id="9566s">
        <source></source>
        <translation>Kontrola zvuku: jen po » (všechny skupiny)</translation>
    </message>
    <message id="9567s">
        <source></source>
        <translation>Ukázka zní: OK a kontrola zvuku čekají na její konec</translation>
    </message>
    <message id="9601s">
        <source></source>
        <translation>Načíst test</translation>
    </message>
    <message id="9602s">
        <source></source>
        <translation>Uložit nastavení</translation>
    </message>
    <message id="9603s">
        <source></source>
        <translation>Příjmení:</translation>
    </message>
    <message id="9604s">
        <source></source>
        <translation>Jméno:</translation>
    </message>
    <message id="9605s">
        <source></source>
        <translation>Studijní číslo:</translation>
    </message>
    <message id="9606s">
        <source></source>
        <translation>Zkouška</translation>
    </message>
    <message id="9611s">
        <source></source>
        <translation>Soubor nebo jeho složka neexistuje.</translation>
    </message>
    <message id="9612s">
        <source></source>
        <translation>Přístup k souboru není povolen.</translation>
    </message>
    <message id="9613s">
        <source></source>
        <translation>Toto je složka, ne soubor.</translation>
    </message>
    <message id="9614s">
        <source></source>
        <translation>Disk je plný.</translation>
    </message>
    <message id="9615s">
        <source></source>
        <translation>Systém hlásí: %1.</translation>
    </message>
    <message id="9616s">
        <source></source>
        <translation>Toto není soubor, který lze číst.</translation>
    </message>
    <message id="9617s">
        <source></source>
        <translation>Soubor je na test příliš velký.</translation>
    </message>
    <message id="9618s">
        <source></source>
        <translation>Test je na soubor příliš velký.</translation>
    </message>
    <message id="9619s">
        <source></source>
        <translation>Jeden znak nelze přečíst.</translation>
    </message>
    <message id="9620s">
        <source></source>
        <translation>Text není správně utvořené XML.</translation>
    </message>
    <message id="9621s">
        <source></source>
        <translation>Kořenový element není „%1“.</translation>
    </message>
    <message id="9622s">
        <source></source>
        <translation>Je zde druhý kořenový element.</translation>
    </message>
    <message id="9623s">
        <source></source>
        <translation>V „%1“ chybí element „%2“.</translation>
    </message>
    <message id="9624s">
        <source></source>
        <translation>V „%1“ chybí atribut „%2“.</translation>
    </message>
    <message id="9625s">
        <source></source>
        <translation>V „%1“ není celé číslo.</translation>
    </message>
    <message id="9631s">
        <source></source>
        <translation>Tato stránka nápovědy je v angličtině.</translation>
    </message>
    <message id="9633s">
        <source></source>
        <translation>… a ještě %1</translation>
    </message>
    <message id="9634s">
        <source></source>
        <translation>Tuto stránku nápovědy nelze zobrazit: je příliš velká nebo příliš hluboko vnořená.</translation>
    </message>
    <message id="9635s">
        <source></source>
        <translation>Název složky pro uložené tréninky, %1, není v UTF-8 a nelze tam nic uložit. Můžete cvičit, ale co teď uložíte, se po skončení programu ztratí. Uveďte prosím jiné místo v MELVADO_STORE.</translation>
    </message>
    <message id="9681s">
        <source></source>
        <translation>voicing</translation>
    </message>
    <message id="9682s">
        <source></source>
        <translation>%1: bez odpovědi</translation>
    </message>
    <message id="9683s">
        <source></source>
        <translation>%1: správně, %2</translation>
    </message>
    <message id="9684s">
        <source></source>
        <translation>%1: špatně, stále bez odpovědi</translation>
    </message>
    <message id="9685s">
        <source></source>
        <translation>%1: nepoznáno, řešení je %2</translation>
    </message>
    <message id="9721s">
        <source></source>
        <translation>Řešení: %1</translation>
    </message>
    <message id="9722s">
        <source></source>
        <translation>Akord %1 z %2</translation>
    </message>
    <message id="9723s">
        <source></source>
        <translation>Odpovězte prosím</translation>
    </message>
    <message id="9724s">
        <source></source>
        <translation>Konec úlohy, vyřešeno %1 z %2</translation>
    </message>
    <message id="9726s">
        <source></source>
        <translation>Konec tréninku: %1</translation>
    </message>
    <message id="9727s">
        <source></source>
        <translation>Konec testu</translation>
    </message>
    <message id="9728s">
        <source></source>
        <translation>Čas vypršel</translation>
    </message>
    <message id="9731s">
        <source></source>
        <translation>%1: z „%2“ do „%3“</translation>
    </message>
    <message id="9732s">
        <source></source>
        <translation>vše z „%1“ do „%2“</translation>
    </message>
</context>
</TS>
