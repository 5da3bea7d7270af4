<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Melvado authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<TS version="2.1" language="pt_PT">
<context>
    <name></name>
    <message id="1s">
        <source></source>
        <translation>Imprimir</translation>
    </message>
    <message id="2s">
        <source></source>
        <translation>(para acordes de 4 a 7 notas e voicings)</translation>
    </message>
    <message id="6s">
        <source></source>
        <extracomment>first part of the version line, before 699 and the number</extracomment>
        <translation>vmod17</translation>
    </message>
    <message id="8s">
        <source></source>
        <extracomment>second line of the question 495</extracomment>
        <translation>(Substitui o que tiver sido gravado antes.)</translation>
    </message>
    <message id="41s">
        <source></source>
        <extracomment>a number from 2 to 5 stands before it</extracomment>
        <translation>oitavas</translation>
    </message>
    <message id="45s">
        <source></source>
        <translation>Voicings a 2 mãos</translation>
    </message>
    <message id="49s">
        <source></source>
        <translation>De 3 a 7 notas</translation>
    </message>
    <message id="51s">
        <source></source>
        <translation>Tríades</translation>
    </message>
    <message id="56s">
        <source></source>
        <translation>Acordes de 4 a 7 notas/voicings a duas mãos: identificar o grupo</translation>
    </message>
    <message id="57s">
        <source></source>
        <translation>Acordes de 4 notas</translation>
    </message>
    <message id="60s">
        <source></source>
        <translation>Acordes de 5 notas</translation>
    </message>
    <message id="62s">
        <source></source>
        <translation>Acordes de 6 notas</translation>
    </message>
    <message id="64s">
        <source></source>
        <translation>Acordes de 7 notas</translation>
    </message>
    <message id="78s">
        <source></source>
        <extracomment>how one task follows another</extracomment>
        <translation>Avanço</translation>
    </message>
    <message id="84s">
        <source></source>
        <extracomment>direction of an arpeggio</extracomment>
        <translation>descendente</translation>
    </message>
    <message id="87s">
        <source></source>
        <extracomment>whether the root is accented</extracomment>
        <translation>Fund. do acorde</translation>
    </message>
    <message id="88s">
        <source></source>
        <extracomment>chords in one task</extracomment>
        <translation>N.º de acordes</translation>
    </message>
    <message id="95s">
        <source></source>
        <extracomment>heading of the list of chords; 700 follows</extracomment>
        <translation>Acorde</translation>
    </message>
    <message id="97s">
        <source></source>
        <extracomment>what is asked for</extracomment>
        <translation>Acorde</translation>
    </message>
    <message id="107s">
        <source></source>
        <translation>Âmbito</translation>
    </message>
    <message id="109s">
        <source></source>
        <extracomment>a blank and 700 follow</extracomment>
        <translation>Estudante</translation>
    </message>
    <message id="114s">
        <source></source>
        <translation>Mostrar acorde</translation>
    </message>
    <message id="116s">
        <source></source>
        <translation>Tempo do arpejo</translation>
    </message>
    <message id="129s">
        <source></source>
        <extracomment>" 1" follows</extracomment>
        <translation>Questão</translation>
    </message>
    <message id="130s">
        <source></source>
        <translation>Objetivo alcançado</translation>
    </message>
    <message id="133s">
        <source></source>
        <extracomment>direction of an arpeggio</extracomment>
        <translation>ascendente</translation>
    </message>
    <message id="135s">
        <source></source>
        <translation>Escolhidos</translation>
    </message>
    <message id="136s">
        <source></source>
        <translation>Prática livre</translation>
    </message>
    <message id="138s">
        <source></source>
        <translation>Material</translation>
    </message>
    <message id="139s">
        <source></source>
        <extracomment>on the OK button while the selection is incomplete</extracomment>
        <translation>Seleção?</translation>
    </message>
    <message id="140s">
        <source></source>
        <translation>Disponíveis</translation>
    </message>
    <message id="141s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>à escolha</translation>
    </message>
    <message id="142s">
        <source></source>
        <extracomment>the tasks follow by themselves</extracomment>
        <translation>automático</translation>
    </message>
    <message id="153s">
        <source></source>
        <translation>Tessitura</translation>
    </message>
    <message id="154s">
        <source></source>
        <translation>Identificar</translation>
    </message>
    <message id="156s">
        <source></source>
        <translation>acentuada</translation>
    </message>
    <message id="160s">
        <source></source>
        <translation>Formar</translation>
    </message>
    <message id="189s">
        <source></source>
        <extracomment>a blank and 700 follow</extracomment>
        <translation>Data</translation>
    </message>
    <message id="194s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>direto</translation>
    </message>
    <message id="196s">
        <source></source>
        <translation>Não é possível ler as configurações gravadas. Comece um novo treino.</translation>
    </message>
    <message id="199s">
        <source></source>
        <extracomment>short form of 201 for a small label</extracomment>
        <translation>7.ª dom., alt.</translation>
    </message>
    <message id="200s">
        <source></source>
        <translation>7.ª da dominante</translation>
    </message>
    <message id="201s">
        <source></source>
        <translation>7.ª da dominante, alt.</translation>
    </message>
    <message id="221s">
        <source></source>
        <extracomment>window title of the settings screen, after 348 and 700; begins with the blank after 700</extracomment>
        <translation> Configurações</translation>
    </message>
    <message id="223s">
        <source></source>
        <translation>SAIR</translation>
    </message>
    <message id="224s">
        <source></source>
        <extracomment>window title of the results screen, after 348 and 700; begins with the blank after 700</extracomment>
        <translation> Resultados</translation>
    </message>
    <message id="232s">
        <source></source>
        <translation>Errado</translation>
    </message>
    <message id="238s">
        <source></source>
        <translation>fixa (lá3&#xa0;=&#xa0;440&#xa0;Hz)</translation>
    </message>
    <message id="243s">
        <source></source>
        <translation>Afinação</translation>
    </message>
    <message id="275s">
        <source></source>
        <translation>Resultado total</translation>
    </message>
    <message id="277s">
        <source></source>
        <extracomment>of the root of the tasks and of the timbre</extracomment>
        <translation>constante</translation>
    </message>
    <message id="278s">
        <source></source>
        <translation>simultâneas (sem&#xa0;arpejo)</translation>
    </message>
    <message id="287s">
        <source></source>
        <extracomment>window title of the first screen, after 347 and 700; begins with the blank after 700</extracomment>
        <translation> Início</translation>
    </message>
    <message id="297s">
        <source></source>
        <translation>Fundamental</translation>
    </message>
    <message id="301s">
        <source></source>
        <extracomment>what is asked for</extracomment>
        <translation>Grupo</translation>
    </message>
    <message id="302s">
        <source></source>
        <translation>Grupos de acordes</translation>
    </message>
    <message id="312s">
        <source></source>
        <translation>Meio-diminuto</translation>
    </message>
    <message id="319s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>alto</translation>
    </message>
    <message id="347s">
        <source></source>
        <extracomment>title of the module</extracomment>
        <translation>Identificar acordes de jazz</translation>
    </message>
    <message id="348s">
        <source></source>
        <extracomment>title of the exercise</extracomment>
        <translation>Identificar acordes de jazz</translation>
    </message>
    <message id="364s">
        <source></source>
        <translation>Tipos de acorde</translation>
    </message>
    <message id="365s">
        <source></source>
        <translation>Timbre</translation>
    </message>
    <message id="366s">
        <source></source>
        <translation>Testar o som</translation>
    </message>
    <message id="371s">
        <source></source>
        <translation>lento</translation>
    </message>
    <message id="372s">
        <source></source>
        <translation>Volume</translation>
    </message>
    <message id="374s">
        <source></source>
        <extracomment>a number follows</extracomment>
        <translation>Campo</translation>
    </message>
    <message id="379s">
        <source></source>
        <translation>7.ª maior</translation>
    </message>
    <message id="380s">
        <source></source>
        <translation>7.ª maior, alt.</translation>
    </message>
    <message id="383s">
        <source></source>
        <extracomment>the next task is asked for</extracomment>
        <translation>manual</translation>
    </message>
    <message id="394s">
        <source></source>
        <translation>min</translation>
    </message>
    <message id="395s">
        <source></source>
        <translation>pelo menos 1!</translation>
    </message>
    <message id="396s">
        <source></source>
        <translation>pelo menos 2!</translation>
    </message>
    <message id="400s">
        <source></source>
        <translation>médio</translation>
    </message>
    <message id="409s">
        <source></source>
        <translation>7.ª menor</translation>
    </message>
    <message id="410s">
        <source></source>
        <translation>Tónica menor</translation>
    </message>
    <message id="420s">
        <source></source>
        <translation>Próxima questão</translation>
    </message>
    <message id="424s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>baixo</translation>
    </message>
    <message id="426s">
        <source></source>
        <extracomment>a blank and a number follow</extracomment>
        <translation>N.º</translation>
    </message>
    <message id="429s">
        <source></source>
        <translation>só a cifra</translation>
    </message>
    <message id="432s">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="438s">
        <source></source>
        <translation>Exame</translation>
    </message>
    <message id="461s">
        <source></source>
        <extracomment>the minutes with 394 and the seconds with 480 follow</extracomment>
        <translation>Restam:</translation>
    </message>
    <message id="462s">
        <source></source>
        <extracomment>a blank and a number follow</extracomment>
        <translation>Questões restantes:</translation>
    </message>
    <message id="468s">
        <source></source>
        <translation>Certo</translation>
    </message>
    <message id="469s">
        <source></source>
        <extracomment>of an arpeggio</extracomment>
        <translation>Direção</translation>
    </message>
    <message id="470s">
        <source></source>
        <translation>rápido</translation>
    </message>
    <message id="476s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>muito alto</translation>
    </message>
    <message id="477s">
        <source></source>
        <translation>muito lento</translation>
    </message>
    <message id="478s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>muito baixo</translation>
    </message>
    <message id="479s">
        <source></source>
        <translation>muito rápido</translation>
    </message>
    <message id="480s">
        <source></source>
        <translation>s</translation>
    </message>
    <message id="495s">
        <source></source>
        <translation>Gravar o progresso do treino?</translation>
    </message>
    <message id="496s">
        <source></source>
        <translation>Tocar</translation>
    </message>
    <message id="499s">
        <source></source>
        <extracomment>a number from 1 to 7 follows</extracomment>
        <translation>Voz</translation>
    </message>
    <message id="507s">
        <source></source>
        <translation>Notas + cifra</translation>
    </message>
    <message id="547s">
        <source></source>
        <translation>Tempo</translation>
    </message>
    <message id="550s">
        <source></source>
        <translation>Teste</translation>
    </message>
    <message id="551s">
        <source></source>
        <translation>Mostrar estado do teste</translation>
    </message>
    <message id="552s">
        <source></source>
        <translation>Ocultar estado do teste</translation>
    </message>
    <message id="564s">
        <source></source>
        <translation>Treino (novo)</translation>
    </message>
    <message id="565s">
        <source></source>
        <translation>Treino (continuação)</translation>
    </message>
    <message id="566s">
        <source></source>
        <translation>Progresso do treino</translation>
    </message>
    <message id="586s">
        <source></source>
        <translation>Tipo de exercício</translation>
    </message>
    <message id="587s">
        <source></source>
        <translation>Modo de estudo</translation>
    </message>
    <message id="588s">
        <source></source>
        <translation>sem acento</translation>
    </message>
    <message id="589s">
        <source></source>
        <extracomment>each voice has a timbre of its own</extracomment>
        <translation>um por voz</translation>
    </message>
    <message id="603s">
        <source></source>
        <translation>variável</translation>
    </message>
    <message id="609s">
        <source></source>
        <translation>Diminuto</translation>
    </message>
    <message id="615s">
        <source></source>
        <translation>do grave ao agudo</translation>
    </message>
    <message id="623s">
        <source></source>
        <extracomment>of the root of the tasks</extracomment>
        <translation>variável</translation>
    </message>
    <message id="624s">
        <source></source>
        <extracomment>direction of an arpeggio</extracomment>
        <translation>aleatória</translation>
    </message>
    <message id="625s">
        <source></source>
        <translation>Continuar</translation>
    </message>
    <message id="629s">
        <source></source>
        <translation>Repetir</translation>
    </message>
    <message id="632s">
        <source></source>
        <translation>Repetir (verificar)</translation>
    </message>
    <message id="638s">
        <source></source>
        <translation>Difícil demais!</translation>
    </message>
    <message id="640s">
        <source></source>
        <translation>Voltar</translation>
    </message>
    <message id="671s">
        <source></source>
        <extracomment>MIDI note 36</extracomment>
        <translation>dó1</translation>
    </message>
    <message id="672s">
        <source></source>
        <extracomment>MIDI note 48</extracomment>
        <translation>dó2</translation>
    </message>
    <message id="673s">
        <source></source>
        <extracomment>MIDI note 60</extracomment>
        <translation>dó3</translation>
    </message>
    <message id="674s">
        <source></source>
        <extracomment>MIDI note 72</extracomment>
        <translation>dó4</translation>
    </message>
    <message id="675s">
        <source></source>
        <extracomment>MIDI note 84</extracomment>
        <translation>dó5</translation>
    </message>
    <message id="676s">
        <source></source>
        <extracomment>MIDI note 96</extracomment>
        <translation>dó6</translation>
    </message>
    <message id="699s">
        <source></source>
        <extracomment>the version number follows</extracomment>
        <translation>versão</translation>
    </message>
    <message id="700s">
        <source></source>
        <extracomment>stands between the two parts of a window title and after the heading 95</extracomment>
        <translation>:</translation>
    </message>
    <message id="702s">
        <source></source>
        <extracomment>between two notes</extracomment>
        <translation>a</translation>
    </message>
    <message id="720s">
        <source></source>
        <extracomment>first of four lines of one message</extracomment>
        <translation>Infelizmente, ocorreu um erro.</translation>
    </message>
    <message id="721s">
        <source></source>
        <extracomment>second of four lines</extracomment>
        <translation>O erro ficou anotado no histórico do Melvado.</translation>
    </message>
    <message id="722s">
        <source></source>
        <extracomment>third of four lines</extracomment>
        <translation>A operação em curso termina aqui e a janela será fechada.</translation>
    </message>
    <message id="723s">
        <source></source>
        <extracomment>last of four lines</extracomment>
        <translation>Tente outra vez. Se não adiantar, fale com o seu professor ou a sua professora.</translation>
    </message>
    <message id="726s">
        <source></source>
        <translation>Um momento, por favor!</translation>
    </message>
    <message id="9001s">
        <source></source>
        <translation>Sim</translation>
    </message>
    <message id="9002s">
        <source></source>
        <translation>Não</translation>
    </message>
    <message id="9003s">
        <source></source>
        <translation>O programa encontrou um erro que não consegue resolver e vai ser encerrado.</translation>
    </message>
    <message id="9011s">
        <source></source>
        <translation>Nenhum quadro está marcado para um teste. Clique com o botão direito nos quadros cujas configurações o teste deve fixar e escolha “Exame”.</translation>
    </message>
    <message id="9012s">
        <source></source>
        <translation>Não foi possível gravar o teste.</translation>
    </message>
    <message id="9013s">
        <source></source>
        <translation>Não foi possível ler o teste gravado. As configurações não foram alteradas.</translation>
    </message>
    <message id="9014s">
        <source></source>
        <translation>Linha</translation>
    </message>
    <message id="9015s">
        <source></source>
        <translation>coluna</translation>
    </message>
    <message id="9016s">
        <source></source>
        <translation>Estas configurações do teste gravado não existem aqui e foram ignoradas:</translation>
    </message>
    <message id="9017s">
        <source></source>
        <translation>escolher tudo</translation>
    </message>
    <message id="9018s">
        <source></source>
        <translation>retirar tudo</translation>
    </message>
    <message id="9101s">
        <source></source>
        <translation>Os seus treinos gravados em %1 vêm de uma versão mais recente deste programa. Ficaram exatamente como estavam. Pode praticar, mas o que gravar agora será perdido quando o programa terminar. Instale a versão mais recente.</translation>
    </message>
    <message id="9102s">
        <source></source>
        <translation>O local dos seus treinos gravados, %1, não pode ser usado (%2). Pode praticar, mas o que gravar agora será perdido quando o programa terminar. Verifique se a pasta existe e se tem permissão para escrever nela e, depois, inicie o programa outra vez.</translation>
    </message>
    <message id="9103s">
        <source></source>
        <translation>Neste momento, outro programa usa os seus treinos gravados em %1 e não os deixou livres a tempo. Nada foi alterado. Feche o outro programa e tente outra vez.</translation>
    </message>
    <message id="9104s">
        <source></source>
        <translation>Os seus treinos gravados em %1 podem ser lidos, mas não alterados. Ficaram como estavam. Pode praticar, mas o que gravar agora será perdido quando o programa terminar. Permita a escrita no ficheiro e na sua pasta e, depois, inicie o programa outra vez.</translation>
    </message>
    <message id="9105s">
        <source></source>
        <translation>Não foi possível gravar em %1: provavelmente o disco está cheio (%2). O que foi gravado antes continua lá, e o que gravou agora fica guardado até o programa terminar. Abra espaço no disco e grave outra vez.</translation>
    </message>
    <message id="9106s">
        <source></source>
        <translation>O ficheiro com os seus treinos gravados, %1, está danificado e não pôde ser lido. Foi conservado com o nome %2 e foi criado um ficheiro novo, vazio. Se tiver uma cópia de segurança do ficheiro, reponha-a na janela do Melvado com «Repor uma cópia…».</translation>
    </message>
    <message id="9107s">
        <source></source>
        <translation>Um dos dados gravados (%1) está danificado e não pôde ser lido. Foi conservado com o nome %2. As configurações começam com os valores habituais; tudo o mais que gravou continua lá.</translation>
    </message>
    <message id="9108s">
        <source></source>
        <translation>O servidor dos treinos gravados, %1, não está acessível (%2). Pode praticar. O que gravar agora fica guardado neste computador e é levado para o servidor assim que este voltar, mesmo que inicie o programa noutro dia.</translation>
    </message>
    <message id="9109s">
        <source></source>
        <translation>Neste momento, os seus treinos gravados em %1 não podem ser lidos (%2). Nada foi alterado. Pode praticar; para os continuar, inicie o programa outra vez mais tarde.</translation>
    </message>
    <message id="9110s">
        <source></source>
        <translation>Não é possível ler o endereço do servidor com os treinos guardados (MELVADO_STORE). Nada foi criado nem alterado. Pode praticar, mas o que guardar agora perde-se no fim do programa. Escreva-o na forma postgresql://utilizador:senha@máquina/base e volte a iniciar o programa.</translation>
    </message>
    <message id="9111s">
        <source></source>
        <translation>O servidor dos treinos gravados, %1, não pode ser usado (%2). Pode praticar, mas o que gravar agora será perdido quando o programa terminar. Avise a pessoa que cuida dos computadores ou inicie o programa outra vez mais tarde.</translation>
    </message>
    <message id="9112s">
        <source></source>
        <translation>Um treino guardado neste computador enquanto o servidor não estava acessível foi agora levado para %1. Entretanto tinha sido gravado lá um mais recente, que é o que vale; o deste computador ficou guardado ao lado, com um nome que termina em %2. Quem cuida do servidor pode recuperá-lo.</translation>
    </message>
    <message id="9113s">
        <source></source>
        <translation>O que gravou não pôde ser escrito em %1 de momento (%2). Fica guardado neste computador e é levado para lá assim que for possível, mesmo que inicie o programa noutro dia.</translation>
    </message>
    <message id="9114s">
        <source></source>
        <translation>%1, que foi adicionado neste computador enquanto o servidor não estava acessível, não pôde ser adicionado lá: o número %2 pertence a %3. Verifique o número e adicione o utilizador outra vez.</translation>
    </message>
    <message id="9117s">
        <source></source>
        <translation>O ficheiro em que este computador guarda o que o servidor ainda não recebeu, %1, está danificado ou é de outra versão deste programa e não pôde ser lido. Foi conservado com o nome %2 e foi criado um ficheiro novo, vazio. Avise a pessoa que cuida dos computadores.</translation>
    </message>
    <message id="9120s">
        <source></source>
        <translation>O ficheiro %1 não é uma cópia de segurança de treinos gravados. Nada foi alterado.</translation>
    </message>
    <message id="9121s">
        <source></source>
        <translation>A cópia de segurança %1 está danificada (%2). Nada foi alterado.</translation>
    </message>
    <message id="9122s">
        <source></source>
        <translation>A cópia de segurança %1 foi gravada por uma versão mais recente deste programa. Nada foi alterado. Instale a versão mais recente.</translation>
    </message>
    <message id="9123s">
        <source></source>
        <translation>Outro programa está a usar os treinos gravados em %1. Nada foi alterado. Feche o exercício e qualquer outro programa que os use e tente outra vez.</translation>
    </message>
    <message id="9124s">
        <source></source>
        <translation>Não foi possível repor a cópia de segurança %1 (%2). O que estava gravado continua lá, tal como estava.</translation>
    </message>
    <message id="9125s">
        <source></source>
        <translation>O ficheiro %1 é o que está agora em uso. Escolha uma cópia de segurança dele.</translation>
    </message>
    <message id="9151s">
        <source></source>
        <translation>O exercício não tem som: o banco de sons dos instrumentos (soundfont) está danificado: %1. Reinstale o pacote fluid-soundfont-gm e, depois, inicie o programa outra vez.</translation>
    </message>
    <message id="9152s">
        <source></source>
        <translation>O exercício não tem som: falta o banco de sons dos instrumentos (soundfont). Instale o pacote fluid-soundfont-gm e, depois, inicie o programa outra vez.</translation>
    </message>
    <message id="9153s">
        <source></source>
        <translation>O exercício não tem som: não foi encontrada nenhuma saída de áudio (tentativas: %1). Verifique se as colunas de som ou os fones estão conectados e selecionados nas configurações de som do sistema e, depois, inicie o programa outra vez.</translation>
    </message>
    <message id="9154s">
        <source></source>
        <translation>A saída de áudio deixou de funcionar. Verifique as colunas de som ou os fones e as configurações de som do sistema e tente outra vez.</translation>
    </message>
    <message id="9155s">
        <source></source>
        <translation>O dispositivo MIDI “%1” já não está disponível. Verifique o cabo e se o dispositivo está ligado e tente outra vez.</translation>
    </message>
    <message id="9156s">
        <source></source>
        <translation>O dispositivo MIDI número %1 não existe; dispositivos existentes: %2. Escolha outro dispositivo MIDI no Melvado.</translation>
    </message>
    <message id="9157s">
        <source></source>
        <translation>O soundfont escolhido, %1, não existe ou está danificado. No seu lugar soa %2. Escolha outro soundfont no Melvado.</translation>
    </message>
    <message id="9201s">
        <source></source>
        <translation>Não foi possível gravar o relatório do seu exercício na pasta %1 (%2). Em vez disso, foi gravado como %3. Verifique se a pasta existe, se tem permissão para escrever nela e se o disco não está cheio.</translation>
    </message>
    <message id="9202s">
        <source></source>
        <translation>Não foi possível gravar o relatório do seu exercício, nem na pasta %1 (%2) nem na pasta do próprio programa. Abra espaço no disco e tente outra vez, ou escolha outra pasta. Até lá é conservado, mas não para além do fim do programa.</translation>
    </message>
    <message id="9203s">
        <source></source>
        <translation>Tentar outra vez</translation>
    </message>
    <message id="9204s">
        <source></source>
        <translation>Outra pasta…</translation>
    </message>
    <message id="9205s">
        <source></source>
        <translation>Desistir do relatório</translation>
    </message>
    <message id="9206s">
        <source></source>
        <translation>Gravar o relatório</translation>
    </message>
    <message id="9207s">
        <source></source>
        <translation>Não foi possível gravar o relatório como %1 (%2).</translation>
    </message>
    <message id="9208s">
        <source></source>
        <translation>Repor uma cópia…</translation>
    </message>
    <message id="9209s">
        <source></source>
        <translation>Escolher uma cópia de segurança</translation>
    </message>
    <message id="9210s">
        <source></source>
        <translation>Pôr a cópia de segurança %1 (última alteração: %2) no lugar de %3? Os utilizadores, as definições, os treinos e o histórico passam então a ser os da cópia. O que está gravado agora é conservado com outro nome.</translation>
    </message>
    <message id="9211s">
        <source></source>
        <translation>A cópia de segurança %1 foi reposta. O que estava gravado antes foi conservado com o nome %2.</translation>
    </message>
    <message id="9251s">
        <source></source>
        <translation>Não é possível ler o ficheiro de idioma %1, que será ignorado. Se faz parte do programa, instale o programa outra vez.</translation>
    </message>
    <message id="9252s">
        <source></source>
        <translation>Não foram encontrados os textos no idioma deste programa; por isso aparece “VOID” no seu lugar. Instale o programa outra vez ou inicie-o em outro idioma.</translation>
    </message>
    <message id="9253s">
        <source></source>
        <translation>O ficheiro de idioma %1 é maior do que um idioma pode ser (no máximo %2 KB) e será ignorado.</translation>
    </message>
    <message id="9254s">
        <source></source>
        <translation>O ficheiro de idioma %1 pede outros ficheiros e será ignorado. Todas as palavras de um idioma têm de estar num só ficheiro.</translation>
    </message>
    <message id="9255s">
        <source></source>
        <translation>O ficheiro de idioma %1 está danificado e será ignorado. Crie-o de novo a partir da sua fonte ou retire-o da sua pasta.</translation>
    </message>
    <message id="9256s">
        <source></source>
        <translation>Outros ficheiros de idioma têm erros e também serão ignorados: %1.</translation>
    </message>
    <message id="9257s">
        <source></source>
        <translation>O Melvado já está aberto, mas não responde. Se estiver apenas ocupado, espere. Quer encerrá-lo e iniciá-lo de novo? O que ali ainda não foi guardado pode perder-se.</translation>
    </message>
    <message id="9258s">
        <source></source>
        <translation>O exercício já está aberto, mas não responde. Se estiver apenas ocupado, espere. Quer encerrá-lo e iniciá-lo de novo? O que ali ainda não foi guardado pode perder-se.</translation>
    </message>
    <message id="9259s">
        <source></source>
        <translation>Não foi possível encerrá-lo. Termine a sessão neste computador, inicie-a de novo e volte a abrir o programa.</translation>
    </message>
    <message id="9260s">
        <source></source>
        <translation>O exercício não responde. Se estiver apenas ocupado, espere. Quer encerrá-lo? O que ali ainda não foi guardado pode perder-se.</translation>
    </message>
    <message id="9301s">
        <source></source>
        <translation>Não foi possível gravar o treino. Tentar outra vez?</translation>
    </message>
    <message id="9302s">
        <source></source>
        <translation>Não há nenhuma impressora configurada. A página foi gravada como %1.</translation>
    </message>
    <message id="9303s">
        <source></source>
        <translation>A impressora %1 não aceitou a página: %2. Verifique se está ligada e conectada e imprima outra vez.</translation>
    </message>
    <message id="9304s">
        <source></source>
        <translation>A impressora %1 não está pronta. Verifique se está ligada e conectada e se tem papel e imprima outra vez.</translation>
    </message>
    <message id="9305s">
        <source></source>
        <translation>Não há nenhuma impressora configurada e também não foi possível gravar a página como ficheiro na pasta %1 (%2). Verifique se tem permissão para escrever nela e se o disco não está cheio.</translation>
    </message>
    <message id="9306s">
        <source></source>
        <translation>Já não há som. O relógio está parado e nada é contado. Assim que o som voltar, o exercício continua sozinho e a tarefa aberta é tocada outra vez. Verifique os altifalantes, os auscultadores ou o dispositivo MIDI.</translation>
    </message>
    <message id="9391s">
        <source></source>
        <translation>Conteúdo</translation>
    </message>
    <message id="9392s">
        <source></source>
        <translation>Voltar</translation>
    </message>
    <message id="9393s">
        <source></source>
        <translation>Avançar</translation>
    </message>
    <message id="9394s">
        <source></source>
        <translation>A página “%1” da ajuda não foi encontrada. As páginas de ajuda são procuradas em: %2</translation>
    </message>
    <message id="9401s">
        <source></source>
        <translation>Treino auditivo</translation>
    </message>
    <message id="9402s">
        <source></source>
        <translation>Quem pratica?</translation>
    </message>
    <message id="9403s">
        <source></source>
        <translation>Ninguém (sem nome)</translation>
    </message>
    <message id="9404s">
        <source></source>
        <translation>Novo…</translation>
    </message>
    <message id="9405s">
        <source></source>
        <translation>Alterar…</translation>
    </message>
    <message id="9406s">
        <source></source>
        <translation>Remover…</translation>
    </message>
    <message id="9407s">
        <source></source>
        <translation>Idioma</translation>
    </message>
    <message id="9408s">
        <source></source>
        <translation>Saída de áudio</translation>
    </message>
    <message id="9409s">
        <source></source>
        <translation>Sintetizador integrado</translation>
    </message>
    <message id="9410s">
        <source></source>
        <translation>%1 (não conectado)</translation>
    </message>
    <message id="9411s">
        <source></source>
        <translation>Testar o som</translation>
    </message>
    <message id="9412s">
        <source></source>
        <translation>Escolher soundfont…</translation>
    </message>
    <message id="9413s">
        <source></source>
        <translation>Soundfont do sistema</translation>
    </message>
    <message id="9414s">
        <source></source>
        <translation>Soundfont: %1</translation>
    </message>
    <message id="9415s">
        <source></source>
        <translation>Soa o soundfont do sistema.</translation>
    </message>
    <message id="9416s">
        <source></source>
        <translation>%1 não está conectado. No seu lugar soa o sintetizador integrado.</translation>
    </message>
    <message id="9417s">
        <source></source>
        <translation>Soa agora um acorde…</translation>
    </message>
    <message id="9418s">
        <source></source>
        <translation>O teste de som toca um acorde e indica o que aconteceu com ele.</translation>
    </message>
    <message id="9419s">
        <source></source>
        <translation>Histórico</translation>
    </message>
    <message id="9420s">
        <source></source>
        <translation>Sair</translation>
    </message>
    <message id="9421s">
        <source></source>
        <translation>Ajuda</translation>
    </message>
    <message id="9422s">
        <source></source>
        <translation>A iniciar…</translation>
    </message>
    <message id="9423s">
        <source></source>
        <translation>Novo estudante</translation>
    </message>
    <message id="9424s">
        <source></source>
        <translation>Alterar estudante</translation>
    </message>
    <message id="9425s">
        <source></source>
        <translation>Sobrenome</translation>
    </message>
    <message id="9426s">
        <source></source>
        <translation>Nome</translation>
    </message>
    <message id="9427s">
        <source></source>
        <translation>Número de matrícula</translation>
    </message>
    <message id="9428s">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <message id="9429s">
        <source></source>
        <translation>Remover %1 da lista? Os treinos gravados são conservados: quem for inscrito de novo com este número continua com eles.</translation>
    </message>
    <message id="9430s">
        <source></source>
        <translation>O soundfont %1 não existe. No seu lugar soa o do sistema.</translation>
    </message>
    <message id="9431s">
        <source></source>
        <translation>Escreva o número de matrícula: os treinos são gravados com ele.</translation>
    </message>
    <message id="9432s">
        <source></source>
        <translation>O número de matrícula é longo demais. Pode ter até %1 caracteres.</translation>
    </message>
    <message id="9433s">
        <source></source>
        <translation>O nome é longo demais. O nome e o sobrenome podem ter até %1 caracteres cada um.</translation>
    </message>
    <message id="9434s">
        <source></source>
        <translation>“%1” não pode ser um número de matrícula. Escolha outro.</translation>
    </message>
    <message id="9435s">
        <source></source>
        <translation>O número de matrícula %1 já está na lista. Escolha esse estudante ou escreva outro número.</translation>
    </message>
    <message id="9436s">
        <source></source>
        <translation>O ficheiro %1 não é um soundfont que se possa tocar ou está danificado. O soundfont não foi alterado.</translation>
    </message>
    <message id="9437s">
        <source></source>
        <translation>Escolher soundfont</translation>
    </message>
    <message id="9441s">
        <source></source>
        <translation>Nenhum som saiu do programa.</translation>
    </message>
    <message id="9442s">
        <source></source>
        <translation>O acorde saiu do programa: o sintetizador integrado tocou %1 notas por %2, com o soundfont %3.</translation>
    </message>
    <message id="9443s">
        <source></source>
        <translation>O acorde saiu do programa: o sintetizador integrado tocou por %1, com o soundfont %2, a um nível de %3 %.</translation>
    </message>
    <message id="9444s">
        <source></source>
        <translation>Se mesmo assim não ouvir nada: ligue as colunas de som ou os fones, aumente o volume e selecione-os nas configurações de som do sistema.</translation>
    </message>
    <message id="9445s">
        <source></source>
        <translation>O sintetizador não ficou pronto a tempo: o computador está muito ocupado ou o soundfont é muito grande. Tente outra vez.</translation>
    </message>
    <message id="9446s">
        <source></source>
        <translation>%1 foi aberto, mas não aceitou nenhum som. Talvez outro programa ocupe a placa de som: feche-o ou escolha outra saída nas configurações de som do sistema.</translation>
    </message>
    <message id="9447s">
        <source></source>
        <translation>O soundfont %1 não tem som de piano. Escolha outro soundfont.</translation>
    </message>
    <message id="9448s">
        <source></source>
        <translation>O acorde saiu do programa: o dispositivo MIDI “%1” aceitou %2 mensagens sem erros.</translation>
    </message>
    <message id="9449s">
        <source></source>
        <translation>Se mesmo assim não ouvir nada: verifique se o dispositivo está ligado, se tem volume suficiente e se toca o que chega pelo canal 1.</translation>
    </message>
    <message id="9450s">
        <source></source>
        <translation>O dispositivo MIDI “%1” não responde. Verifique o cabo e se o dispositivo está ligado, ou escolha outra saída.</translation>
    </message>
    <message id="9451s">
        <source></source>
        <translation>O exercício terminou inesperadamente. O que foi gravado antes continua lá. Deseja ver o fim do histórico?</translation>
    </message>
    <message id="9452s">
        <source></source>
        <translation>O exercício já está aberto. Depois de OK, a sua janela passa para primeiro plano.</translation>
    </message>
    <message id="9453s">
        <source></source>
        <translation>Não foi possível iniciar o exercício (%1). Reinstale o programa; se não adiantar, envie o relatório de erro do histórico.</translation>
    </message>
    <message id="9455s">
        <source></source>
        <translation>Hora</translation>
    </message>
    <message id="9456s">
        <source></source>
        <translation>Local</translation>
    </message>
    <message id="9457s">
        <source></source>
        <translation>Número</translation>
    </message>
    <message id="9458s">
        <source></source>
        <translation>Texto</translation>
    </message>
    <message id="9459s">
        <source></source>
        <translation>Origem</translation>
    </message>
    <message id="9460s">
        <source></source>
        <translation>Atualizar</translation>
    </message>
    <message id="9461s">
        <source></source>
        <translation>Copiar como relatório de erro</translation>
    </message>
    <message id="9462s">
        <source></source>
        <translation>Fechar</translation>
    </message>
    <message id="9463s">
        <source></source>
        <translation>O relatório está na área de transferência e pode ser colado num e-mail.</translation>
    </message>
    <message id="9464s">
        <source></source>
        <translation>O histórico está vazio.</translation>
    </message>
    <message id="9467s">
        <source></source>
        <translation>Ocorreu um erro que o programa não esperava (%1). Está no histórico; você pode continuar. Envie o relatório de erro do histórico.</translation>
    </message>
    <message id="9502s">
        <source></source>
        <translation>O teste ainda não terminou. Abandoná-lo sem resultados?</translation>
    </message>
    <message id="9531s">
        <source></source>
        <translation>A preparar o som…</translation>
    </message>
    <message id="9532s">
        <source></source>
        <translation>Não foi possível tocar nada, porque a saída de som não está pronta. Verifique os altifalantes, os auscultadores ou o dispositivo MIDI e tente outra vez. Nada foi contado.</translation>
    </message>
    <message id="9551s">
        <source></source>
        <translation>Escolher o tipo de acorde</translation>
    </message>
    <message id="9552s">
        <source></source>
        <translation>Tipos de acorde escolhidos</translation>
    </message>
    <message id="9553s">
        <source></source>
        <translation>Escolher o grupo de acordes</translation>
    </message>
    <message id="9554s">
        <source></source>
        <translation>Grupos de acordes escolhidos</translation>
    </message>
    <message id="9555s">
        <source></source>
        <translation>O modo de estudo “%1” fixa estas configurações. Elas ficam como estão:</translation>
    </message>
    <message id="9560s">
        <source></source>
        <translation>Acordes: %1</translation>
    </message>
    <message id="9561s">
        <source></source>
        <translation>Acordes: %1 de %2, sorteados a cada vez</translation>
    </message>
    <message id="9562s">
        <source></source>
        <translation>Questões: %1, em no máximo %2 min</translation>
    </message>
    <message id="9563s">
        <source></source>
        <translation>Falta escolher: tipos de acorde (pelo menos 1)</translation>
    </message>
    <message id="9564s">
        <source></source>
        <translation>Falta escolher: grupos de acordes (%1 de pelo menos %2)</translation>
    </message>
    <message id="9565s">
        <source></source>
        <translation>Testar o som: só com a seleção completa</translation>
    </message>
    <message id="9566s">
        <source></source>
        <translation>Testar o som: só depois de » (todos os grupos)</translation>
    </message>
    <message id="9567s">
        <source></source>
        <translation>A amostra está tocando: OK e o teste do som esperam o fim</translation>
    </message>
    <message id="9601s">
        <source></source>
        <translation>Ler teste</translation>
    </message>
    <message id="9602s">
        <source></source>
        <translation>Guardar configurações</translation>
    </message>
    <message id="9603s">
        <source></source>
        <translation>Sobrenome:</translation>
    </message>
    <message id="9604s">
        <source></source>
        <translation>Nome:</translation>
    </message>
    <message id="9605s">
        <source></source>
        <translation>N.º de matrícula:</translation>
    </message>
    <message id="9606s">
        <source></source>
        <translation>Exame</translation>
    </message>
    <message id="9611s">
        <source></source>
        <translation>O ficheiro ou a sua pasta não existe.</translation>
    </message>
    <message id="9612s">
        <source></source>
        <translation>O acesso ao ficheiro não é permitido.</translation>
    </message>
    <message id="9613s">
        <source></source>
        <translation>Isto é uma pasta, não um ficheiro.</translation>
    </message>
    <message id="9614s">
        <source></source>
        <translation>O disco está cheio.</translation>
    </message>
    <message id="9615s">
        <source></source>
        <translation>O sistema indica: %1.</translation>
    </message>
    <message id="9616s">
        <source></source>
        <translation>Isto não é um ficheiro que se possa ler.</translation>
    </message>
    <message id="9617s">
        <source></source>
        <translation>O ficheiro é demasiado grande para um teste.</translation>
    </message>
    <message id="9618s">
        <source></source>
        <translation>O teste é demasiado grande para um ficheiro.</translation>
    </message>
    <message id="9619s">
        <source></source>
        <translation>Há um carácter que não se pode ler.</translation>
    </message>
    <message id="9620s">
        <source></source>
        <translation>O texto não é XML bem formado.</translation>
    </message>
    <message id="9621s">
        <source></source>
        <translation>O elemento raiz não é «%1».</translation>
    </message>
    <message id="9622s">
        <source></source>
        <translation>Há um segundo elemento raiz.</translation>
    </message>
    <message id="9623s">
        <source></source>
        <translation>Em «%1» falta o elemento «%2».</translation>
    </message>
    <message id="9624s">
        <source></source>
        <translation>Em «%1» falta o atributo «%2».</translation>
    </message>
    <message id="9625s">
        <source></source>
        <translation>Em «%1» não há um número inteiro.</translation>
    </message>
    <message id="9631s">
        <source></source>
        <translation>Esta página da ajuda está em inglês.</translation>
    </message>
    <message id="9633s">
        <source></source>
        <translation>… e mais %1</translation>
    </message>
    <message id="9634s">
        <source></source>
        <translation>Esta página da ajuda não pode ser mostrada: é demasiado grande ou tem demasiados níveis.</translation>
    </message>
    <message id="9635s">
        <source></source>
        <translation>O nome da pasta dos treinos guardados, %1, não está em UTF-8 e nada se pode guardar ali. Pode praticar, mas o que guardar agora perde-se quando o programa terminar. Indique outro lugar em MELVADO_STORE.</translation>
    </message>
    <message id="9681s">
        <source></source>
        <translation>voicing</translation>
    </message>
    <message id="9682s">
        <source></source>
        <translation>%1: em aberto</translation>
    </message>
    <message id="9683s">
        <source></source>
        <translation>%1: certo, %2</translation>
    </message>
    <message id="9684s">
        <source></source>
        <translation>%1: errado, ainda em aberto</translation>
    </message>
    <message id="9685s">
        <source></source>
        <translation>%1: não reconhecido, a solução é %2</translation>
    </message>
    <message id="9721s">
        <source></source>
        <translation>Solução: %1</translation>
    </message>
    <message id="9722s">
        <source></source>
        <translation>Acorde %1 de %2</translation>
    </message>
    <message id="9723s">
        <source></source>
        <translation>Responda, por favor</translation>
    </message>
    <message id="9724s">
        <source></source>
        <translation>Fim da questão, %1 de %2 resolvidos</translation>
    </message>
    <message id="9726s">
        <source></source>
        <translation>Fim do treino: %1</translation>
    </message>
    <message id="9727s">
        <source></source>
        <translation>Fim do teste</translation>
    </message>
    <message id="9728s">
        <source></source>
        <translation>O tempo acabou</translation>
    </message>
    <message id="9731s">
        <source></source>
        <translation>%1: de «%2» para «%3»</translation>
    </message>
    <message id="9732s">
        <source></source>
        <translation>todos de «%1» para «%2»</translation>
    </message>
</context>
</TS>
