<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Melvado authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="1s">
        <source></source>
        <translation>打印</translation>
    </message>
    <message id="2s">
        <source></source>
        <translation>（适用于四至七音和弦及双手和弦排列）</translation>
    </message>
    <message id="6s">
        <source></source>
        <extracomment>first part of the version line, before 699 and the number</extracomment>
        <translation>vmod17</translation>
    </message>
    <message id="8s">
        <source></source>
        <extracomment>second line of the question 495</extracomment>
        <translation>（之前保存的进度将被替换。）</translation>
    </message>
    <message id="41s">
        <source></source>
        <extracomment>a number from 2 to 5 stands before it</extracomment>
        <translation>个八度</translation>
    </message>
    <message id="45s">
        <source></source>
        <translation>双手和弦排列</translation>
    </message>
    <message id="49s">
        <source></source>
        <translation>三至七音和弦</translation>
    </message>
    <message id="51s">
        <source></source>
        <translation>三和弦</translation>
    </message>
    <message id="56s">
        <source></source>
        <translation>四至七音和弦／双手和弦排列：判断和弦类别</translation>
    </message>
    <message id="57s">
        <source></source>
        <translation>四音和弦</translation>
    </message>
    <message id="60s">
        <source></source>
        <translation>五音和弦</translation>
    </message>
    <message id="62s">
        <source></source>
        <translation>六音和弦</translation>
    </message>
    <message id="64s">
        <source></source>
        <translation>七音和弦</translation>
    </message>
    <message id="78s">
        <source></source>
        <extracomment>how one task follows another</extracomment>
        <translation>出题方式</translation>
    </message>
    <message id="84s">
        <source></source>
        <extracomment>direction of an arpeggio</extracomment>
        <translation>下行</translation>
    </message>
    <message id="87s">
        <source></source>
        <extracomment>whether the root is accented</extracomment>
        <translation>和弦根音</translation>
    </message>
    <message id="88s">
        <source></source>
        <extracomment>chords in one task</extracomment>
        <translation>和弦数量</translation>
    </message>
    <message id="95s">
        <source></source>
        <extracomment>heading of the list of chords; 700 follows</extracomment>
        <translation>和弦</translation>
    </message>
    <message id="97s">
        <source></source>
        <extracomment>what is asked for</extracomment>
        <translation>和弦</translation>
    </message>
    <message id="107s">
        <source></source>
        <translation>音域</translation>
    </message>
    <message id="109s">
        <source></source>
        <extracomment>a blank and 700 follow</extracomment>
        <translation>用户</translation>
    </message>
    <message id="114s">
        <source></source>
        <translation>和弦显示</translation>
    </message>
    <message id="116s">
        <source></source>
        <translation>琶音速度</translation>
    </message>
    <message id="129s">
        <source></source>
        <extracomment>" 1" follows</extracomment>
        <translation>题目</translation>
    </message>
    <message id="130s">
        <source></source>
        <translation>训练完成</translation>
    </message>
    <message id="133s">
        <source></source>
        <extracomment>direction of an arpeggio</extracomment>
        <translation>上行</translation>
    </message>
    <message id="135s">
        <source></source>
        <translation>已选</translation>
    </message>
    <message id="136s">
        <source></source>
        <translation>自由练习</translation>
    </message>
    <message id="138s">
        <source></source>
        <translation>和弦材料</translation>
    </message>
    <message id="139s">
        <source></source>
        <extracomment>on the OK button while the selection is incomplete</extracomment>
        <translation>请选择??</translation>
    </message>
    <message id="140s">
        <source></source>
        <translation>可选</translation>
    </message>
    <message id="141s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>可选</translation>
    </message>
    <message id="142s">
        <source></source>
        <extracomment>the tasks follow by themselves</extracomment>
        <translation>自动</translation>
    </message>
    <message id="153s">
        <source></source>
        <translation>音区</translation>
    </message>
    <message id="154s">
        <source></source>
        <translation>听辨</translation>
    </message>
    <message id="156s">
        <source></source>
        <translation>有重音</translation>
    </message>
    <message id="160s">
        <source></source>
        <translation>构成</translation>
    </message>
    <message id="189s">
        <source></source>
        <extracomment>a blank and 700 follow</extracomment>
        <translation>日期</translation>
    </message>
    <message id="194s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>直接</translation>
    </message>
    <message id="196s">
        <source></source>
        <translation>无法读取已保存的设置。请开始新的训练。</translation>
    </message>
    <message id="199s">
        <source></source>
        <extracomment>short form of 201 for a small label</extracomment>
        <translation>变化属七</translation>
    </message>
    <message id="200s">
        <source></source>
        <translation>属七和弦</translation>
    </message>
    <message id="201s">
        <source></source>
        <translation>变化属七和弦</translation>
    </message>
    <message id="221s">
        <source></source>
        <extracomment>window title of the settings screen, after 348 and 700; begins with the blank after 700</extracomment>
        <translation>设置</translation>
    </message>
    <message id="223s">
        <source></source>
        <translation>退出</translation>
    </message>
    <message id="224s">
        <source></source>
        <extracomment>window title of the results screen, after 348 and 700; begins with the blank after 700</extracomment>
        <translation>结果</translation>
    </message>
    <message id="232s">
        <source></source>
        <translation>错误</translation>
    </message>
    <message id="238s">
        <source></source>
        <translation>固定（a¹ = 440 Hz）</translation>
    </message>
    <message id="243s">
        <source></source>
        <translation>标准音高</translation>
    </message>
    <message id="275s">
        <source></source>
        <translation>总成绩</translation>
    </message>
    <message id="277s">
        <source></source>
        <extracomment>of the root of the tasks and of the timbre</extracomment>
        <translation>固定</translation>
    </message>
    <message id="278s">
        <source></source>
        <translation>同时（无琶音）</translation>
    </message>
    <message id="287s">
        <source></source>
        <extracomment>window title of the first screen, after 347 and 700; begins with the blank after 700</extracomment>
        <translation>开始</translation>
    </message>
    <message id="297s">
        <source></source>
        <translation>根音</translation>
    </message>
    <message id="301s">
        <source></source>
        <extracomment>what is asked for</extracomment>
        <translation>类别</translation>
    </message>
    <message id="302s">
        <source></source>
        <translation>和弦类别</translation>
    </message>
    <message id="312s">
        <source></source>
        <translation>半减七和弦</translation>
    </message>
    <message id="319s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>高</translation>
    </message>
    <message id="347s">
        <source></source>
        <extracomment>title of the module</extracomment>
        <translation>爵士和弦听辨</translation>
    </message>
    <message id="348s">
        <source></source>
        <extracomment>title of the exercise</extracomment>
        <translation>爵士和弦听辨</translation>
    </message>
    <message id="364s">
        <source></source>
        <translation>和弦音数</translation>
    </message>
    <message id="365s">
        <source></source>
        <translation>音色</translation>
    </message>
    <message id="366s">
        <source></source>
        <translation>试听</translation>
    </message>
    <message id="371s">
        <source></source>
        <translation>慢</translation>
    </message>
    <message id="372s">
        <source></source>
        <translation>音量</translation>
    </message>
    <message id="374s">
        <source></source>
        <extracomment>a number follows</extracomment>
        <translation>编号：</translation>
    </message>
    <message id="379s">
        <source></source>
        <translation>大七和弦</translation>
    </message>
    <message id="380s">
        <source></source>
        <translation>变化大七和弦</translation>
    </message>
    <message id="383s">
        <source></source>
        <extracomment>the next task is asked for</extracomment>
        <translation>手动</translation>
    </message>
    <message id="394s">
        <source></source>
        <translation>分</translation>
    </message>
    <message id="395s">
        <source></source>
        <translation>至少选 1 项！</translation>
    </message>
    <message id="396s">
        <source></source>
        <translation>至少选 2 项！</translation>
    </message>
    <message id="400s">
        <source></source>
        <translation>中等</translation>
    </message>
    <message id="409s">
        <source></source>
        <translation>小七和弦</translation>
    </message>
    <message id="410s">
        <source></source>
        <translation>小调主和弦</translation>
    </message>
    <message id="420s">
        <source></source>
        <translation>下一题</translation>
    </message>
    <message id="424s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>低</translation>
    </message>
    <message id="426s">
        <source></source>
        <extracomment>a blank and a number follow</extracomment>
        <translation>No.</translation>
    </message>
    <message id="429s">
        <source></source>
        <translation>仅和弦标记</translation>
    </message>
    <message id="432s">
        <source></source>
        <translation>确定</translation>
    </message>
    <message id="438s">
        <source></source>
        <translation>考试</translation>
    </message>
    <message id="461s">
        <source></source>
        <extracomment>the minutes with 394 and the seconds with 480 follow</extracomment>
        <translation>剩余时间：</translation>
    </message>
    <message id="462s">
        <source></source>
        <extracomment>a blank and a number follow</extracomment>
        <translation>剩余题数：</translation>
    </message>
    <message id="468s">
        <source></source>
        <translation>正确</translation>
    </message>
    <message id="469s">
        <source></source>
        <extracomment>of an arpeggio</extracomment>
        <translation>方向</translation>
    </message>
    <message id="470s">
        <source></source>
        <translation>快</translation>
    </message>
    <message id="476s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>很高</translation>
    </message>
    <message id="477s">
        <source></source>
        <translation>很慢</translation>
    </message>
    <message id="478s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>很低</translation>
    </message>
    <message id="479s">
        <source></source>
        <translation>很快</translation>
    </message>
    <message id="480s">
        <source></source>
        <translation>秒</translation>
    </message>
    <message id="495s">
        <source></source>
        <translation>要保存训练进度吗？</translation>
    </message>
    <message id="496s">
        <source></source>
        <translation>弹奏</translation>
    </message>
    <message id="499s">
        <source></source>
        <extracomment>a number from 1 to 7 follows</extracomment>
        <translation>声部</translation>
    </message>
    <message id="507s">
        <source></source>
        <translation>音符 + 和弦标记</translation>
    </message>
    <message id="547s">
        <source></source>
        <translation>速度</translation>
    </message>
    <message id="550s">
        <source></source>
        <translation>测验</translation>
    </message>
    <message id="551s">
        <source></source>
        <translation>显示测验状态</translation>
    </message>
    <message id="552s">
        <source></source>
        <translation>隐藏测验状态</translation>
    </message>
    <message id="564s">
        <source></source>
        <translation>训练（新）</translation>
    </message>
    <message id="565s">
        <source></source>
        <translation>训练（继续）</translation>
    </message>
    <message id="566s">
        <source></source>
        <translation>训练进度</translation>
    </message>
    <message id="586s">
        <source></source>
        <translation>练习类型</translation>
    </message>
    <message id="587s">
        <source></source>
        <translation>练习模式</translation>
    </message>
    <message id="588s">
        <source></source>
        <translation>无重音</translation>
    </message>
    <message id="589s">
        <source></source>
        <extracomment>each voice has a timbre of its own</extracomment>
        <translation>各声部不同</translation>
    </message>
    <message id="603s">
        <source></source>
        <translation>可变</translation>
    </message>
    <message id="609s">
        <source></source>
        <translation>减七和弦</translation>
    </message>
    <message id="615s">
        <source></source>
        <translation>由下至上</translation>
    </message>
    <message id="623s">
        <source></source>
        <extracomment>of the root of the tasks</extracomment>
        <translation>变换</translation>
    </message>
    <message id="624s">
        <source></source>
        <extracomment>direction of an arpeggio</extracomment>
        <translation>随机</translation>
    </message>
    <message id="625s">
        <source></source>
        <translation>继续</translation>
    </message>
    <message id="629s">
        <source></source>
        <translation>再听一遍</translation>
    </message>
    <message id="632s">
        <source></source>
        <translation>再听一遍（核对）</translation>
    </message>
    <message id="638s">
        <source></source>
        <translation>太难了！</translation>
    </message>
    <message id="640s">
        <source></source>
        <translation>返回</translation>
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
        <translation>版本</translation>
    </message>
    <message id="700s">
        <source></source>
        <extracomment>stands between the two parts of a window title and after the heading 95</extracomment>
        <translation>：</translation>
    </message>
    <message id="702s">
        <source></source>
        <extracomment>between two notes</extracomment>
        <translation>至</translation>
    </message>
    <message id="720s">
        <source></source>
        <extracomment>first of four lines of one message</extracomment>
        <translation>抱歉，程序出错了。</translation>
    </message>
    <message id="721s">
        <source></source>
        <extracomment>second of four lines</extracomment>
        <translation>该错误已记入 Melvado 的日志。</translation>
    </message>
    <message id="722s">
        <source></source>
        <extracomment>third of four lines</extracomment>
        <translation>当前步骤将中止，窗口随即关闭。</translation>
    </message>
    <message id="723s">
        <source></source>
        <extracomment>last of four lines</extracomment>
        <translation>请重试。如果仍不能解决，请向您的老师求助。</translation>
    </message>
    <message id="726s">
        <source></source>
        <translation>请稍候…</translation>
    </message>
    <message id="9001s">
        <source></source>
        <translation>是</translation>
    </message>
    <message id="9002s">
        <source></source>
        <translation>否</translation>
    </message>
    <message id="9003s">
        <source></source>
        <translation>程序遇到无法处理的错误，即将退出。</translation>
    </message>
    <message id="9011s">
        <source></source>
        <translation>尚未为测验标记任何设置框。请右键单击要由测验规定设置的框，然后选择“考试”。</translation>
    </message>
    <message id="9012s">
        <source></source>
        <translation>无法写入测验文件。</translation>
    </message>
    <message id="9013s">
        <source></source>
        <translation>无法读取测验文件。设置没有改变。</translation>
    </message>
    <message id="9014s">
        <source></source>
        <translation>行</translation>
    </message>
    <message id="9015s">
        <source></source>
        <translation>列</translation>
    </message>
    <message id="9016s">
        <source></source>
        <translation>测验文件中的下列设置在此处不存在，已被忽略：</translation>
    </message>
    <message id="9017s">
        <source></source>
        <translation>全部选择</translation>
    </message>
    <message id="9018s">
        <source></source>
        <translation>全部取消</translation>
    </message>
    <message id="9101s">
        <source></source>
        <translation>%1 中已保存的训练来自本程序的较新版本，现已原样保留。您可以练习，但现在保存的内容在程序退出后会丢失。请安装较新的版本。</translation>
    </message>
    <message id="9102s">
        <source></source>
        <translation>无法使用训练的保存位置 %1（%2）。您可以练习，但现在保存的内容在程序退出后会丢失。请检查该文件夹是否存在、您是否有写入权限，然后重新启动程序。</translation>
    </message>
    <message id="9103s">
        <source></source>
        <translation>另一个程序正在使用 %1 中已保存的训练，未能及时释放。没有任何内容被更改。请关闭该程序后重试。</translation>
    </message>
    <message id="9104s">
        <source></source>
        <translation>%1 中已保存的训练可以读取，但不能更改，现已原样保留。您可以练习，但现在保存的内容在程序退出后会丢失。请将该文件及其文件夹设为可写，然后重新启动程序。</translation>
    </message>
    <message id="9105s">
        <source></source>
        <translation>无法将内容保存到 %1：磁盘可能已满（%2）。以前保存的内容仍在，新内容会保留到程序退出为止。请清理磁盘空间后再保存一次。</translation>
    </message>
    <message id="9106s">
        <source></source>
        <translation>保存训练的文件 %1 已损坏，无法读取。该文件已改名为 %2 保留，并新建了一个空文件。如果您有该文件的备份，请在 Melvado 窗口中用“恢复备份…”将其恢复。</translation>
    </message>
    <message id="9107s">
        <source></source>
        <translation>一条已保存的记录（%1）已损坏，无法读取。该记录已改名为 %2 保留。设置将采用默认值；其他已保存的内容仍在。</translation>
    </message>
    <message id="9108s">
        <source></source>
        <translation>保存训练的服务器 %1 目前无法访问（%2）。您可以练习。现在保存的内容会留在这台计算机上，服务器恢复后立即传送过去，即使您改日再启动程序也一样。</translation>
    </message>
    <message id="9109s">
        <source></source>
        <translation>目前无法读取 %1 中已保存的训练（%2）。没有任何内容被更改。您可以练习；如要继续已保存的训练，请稍后重新启动程序。</translation>
    </message>
    <message id="9110s">
        <source></source>
        <translation>无法读取保存训练的服务器地址（MELVADO_STORE）。没有创建或更改任何内容。您可以练习，但现在保存的内容会在程序结束时丢失。请按 postgresql://用户:密码@主机/数据库 的形式书写，然后重新启动程序。</translation>
    </message>
    <message id="9111s">
        <source></source>
        <translation>无法使用保存训练的服务器 %1（%2）。您可以练习，但现在保存的内容在程序退出后会丢失。请告知计算机管理人员，或稍后重新启动程序。</translation>
    </message>
    <message id="9112s">
        <source></source>
        <translation>服务器无法访问期间留在这台计算机上的一个训练现已传送到 %1。在此期间那里保存了更新的训练，以较新的为准；这台计算机上的训练保存在它旁边，名称以 %2 结尾。管理服务器的人员可以将其恢复。</translation>
    </message>
    <message id="9113s">
        <source></source>
        <translation>您保存的内容暂时无法写入 %1（%2）。它会留在这台计算机上，一旦可以写入就会传送过去，即使您改日再启动程序也一样。</translation>
    </message>
    <message id="9114s">
        <source></source>
        <translation>服务器无法访问期间在这台计算机上添加的用户 %1 无法添加到服务器：学号 %2 属于 %3。请核对学号，然后重新添加该用户。</translation>
    </message>
    <message id="9117s">
        <source></source>
        <translation>这台计算机上保存尚未传送到服务器的内容的文件 %1 已损坏，或来自本程序的其他版本，无法读取。该文件已改名为 %2 保留，并新建了一个空文件。请告知负责管理计算机的人员。</translation>
    </message>
    <message id="9120s">
        <source></source>
        <translation>文件 %1 不是已保存训练的备份。未作任何更改。</translation>
    </message>
    <message id="9121s">
        <source></source>
        <translation>备份 %1 已损坏（%2）。未作任何更改。</translation>
    </message>
    <message id="9122s">
        <source></source>
        <translation>备份 %1 由本程序的更新版本写入。未作任何更改。请安装更新的版本。</translation>
    </message>
    <message id="9123s">
        <source></source>
        <translation>另一个程序正在使用 %1 中保存的训练。未作任何更改。请关闭练习和其他使用它的程序，然后重试。</translation>
    </message>
    <message id="9124s">
        <source></source>
        <translation>无法恢复备份 %1（%2）。之前保存的内容仍保持原样。</translation>
    </message>
    <message id="9125s">
        <source></source>
        <translation>文件 %1 是当前正在使用的文件。请选择它的备份。</translation>
    </message>
    <message id="9151s">
        <source></source>
        <translation>练习没有声音：乐器音色文件（SoundFont）已损坏：%1。请重新安装软件包 fluid-soundfont-gm，然后重新启动程序。</translation>
    </message>
    <message id="9152s">
        <source></source>
        <translation>练习没有声音：缺少乐器音色文件（SoundFont）。请安装软件包 fluid-soundfont-gm，然后重新启动程序。</translation>
    </message>
    <message id="9153s">
        <source></source>
        <translation>练习没有声音：未找到音频输出（已尝试：%1）。请检查扬声器或耳机是否已连接，并已在系统的声音设置中选中，然后重新启动程序。</translation>
    </message>
    <message id="9154s">
        <source></source>
        <translation>音频输出已中断。请检查扬声器或耳机以及系统的声音设置，然后重试。</translation>
    </message>
    <message id="9155s">
        <source></source>
        <translation>MIDI 设备“%1”已不可用。请检查连接线以及设备是否已开启，然后重试。</translation>
    </message>
    <message id="9156s">
        <source></source>
        <translation>编号为 %1 的 MIDI 设备不存在；现有 %2 台设备。请在 Melvado 中选择其他 MIDI 设备。</translation>
    </message>
    <message id="9157s">
        <source></source>
        <translation>所选的 SoundFont %1 不存在或已损坏，现由 %2 代替发声。请在 Melvado 中选择其他 SoundFont。</translation>
    </message>
    <message id="9201s">
        <source></source>
        <translation>无法将练习记录保存到文件夹 %1（%2），已改存为 %3。请检查该文件夹是否存在、您是否有写入权限，以及磁盘是否已满。</translation>
    </message>
    <message id="9202s">
        <source></source>
        <translation>无法保存练习记录：文件夹 %1（%2）和程序自身的文件夹都无法写入。请清理磁盘空间后重试，或选择其他文件夹。在此之前记录会被保留，但程序结束后不再保留。</translation>
    </message>
    <message id="9203s">
        <source></source>
        <translation>重试</translation>
    </message>
    <message id="9204s">
        <source></source>
        <translation>其他文件夹…</translation>
    </message>
    <message id="9205s">
        <source></source>
        <translation>放弃记录</translation>
    </message>
    <message id="9206s">
        <source></source>
        <translation>保存记录</translation>
    </message>
    <message id="9207s">
        <source></source>
        <translation>无法将记录保存为 %1（%2）。</translation>
    </message>
    <message id="9208s">
        <source></source>
        <translation>恢复备份…</translation>
    </message>
    <message id="9209s">
        <source></source>
        <translation>选择备份</translation>
    </message>
    <message id="9210s">
        <source></source>
        <translation>要用备份 %1（最后修改：%2）替换 %3 吗？之后用户、设置、训练和日志都是备份中的内容。当前保存的内容会以其他名称保留。</translation>
    </message>
    <message id="9211s">
        <source></source>
        <translation>已恢复备份 %1。之前保存的内容以名称 %2 保留。</translation>
    </message>
    <message id="9251s">
        <source></source>
        <translation>无法读取语言文件 %1，已将其忽略。如果它是程序自带的，请重新安装程序。</translation>
    </message>
    <message id="9252s">
        <source></source>
        <translation>未找到本程序所用语言的文字，因此文字处显示为“VOID”。请重新安装程序，或以其他语言启动。</translation>
    </message>
    <message id="9253s">
        <source></source>
        <translation>语言文件 %1 过大（最多 %2 KB），已忽略。</translation>
    </message>
    <message id="9254s">
        <source></source>
        <translation>语言文件 %1 需要其他文件，已忽略。一种语言的所有文字必须在同一个文件中。</translation>
    </message>
    <message id="9255s">
        <source></source>
        <translation>语言文件 %1 已损坏，已忽略。请由其源文件重新生成，或将其从文件夹中移走。</translation>
    </message>
    <message id="9256s">
        <source></source>
        <translation>另有语言文件存在错误，也已忽略：%1。</translation>
    </message>
    <message id="9257s">
        <source></source>
        <translation>Melvado 已经打开，但没有响应。如果它只是在忙，请稍候。要结束它并重新启动吗？其中尚未保存的内容可能会丢失。</translation>
    </message>
    <message id="9258s">
        <source></source>
        <translation>练习已经打开，但没有响应。如果它只是在忙，请稍候。要结束它并重新启动吗？其中尚未保存的内容可能会丢失。</translation>
    </message>
    <message id="9259s">
        <source></source>
        <translation>无法结束它。请注销这台计算机后重新登录，再启动程序。</translation>
    </message>
    <message id="9260s">
        <source></source>
        <translation>练习没有响应。如果它只是在忙，请稍候。要结束它吗？其中尚未保存的内容可能会丢失。</translation>
    </message>
    <message id="9301s">
        <source></source>
        <translation>无法保存训练。要重试吗？</translation>
    </message>
    <message id="9302s">
        <source></source>
        <translation>未设置打印机。页面已保存为 %1。</translation>
    </message>
    <message id="9303s">
        <source></source>
        <translation>打印机 %1 未接受该页面：%2。请检查打印机是否已开启并连接，然后重新打印。</translation>
    </message>
    <message id="9304s">
        <source></source>
        <translation>打印机 %1 未就绪。请检查打印机是否已开启、已连接并有纸，然后重新打印。</translation>
    </message>
    <message id="9305s">
        <source></source>
        <translation>未设置打印机，页面也无法作为文件保存到文件夹 %1（%2）。请检查您是否有写入权限，以及磁盘是否已满。</translation>
    </message>
    <message id="9306s">
        <source></source>
        <translation>声音中断了。计时已停止，期间不计成绩。声音恢复后，练习会自动继续，未完成的题目会再播放一次。请检查扬声器、耳机或 MIDI 设备。</translation>
    </message>
    <message id="9391s">
        <source></source>
        <translation>目录</translation>
    </message>
    <message id="9392s">
        <source></source>
        <translation>后退</translation>
    </message>
    <message id="9393s">
        <source></source>
        <translation>前进</translation>
    </message>
    <message id="9394s">
        <source></source>
        <translation>未找到帮助页面“%1”。帮助页面的查找位置：%2</translation>
    </message>
    <message id="9401s">
        <source></source>
        <translation>听力训练</translation>
    </message>
    <message id="9402s">
        <source></source>
        <translation>谁在练习？</translation>
    </message>
    <message id="9403s">
        <source></source>
        <translation>无（不使用姓名）</translation>
    </message>
    <message id="9404s">
        <source></source>
        <translation>添加…</translation>
    </message>
    <message id="9405s">
        <source></source>
        <translation>更改…</translation>
    </message>
    <message id="9406s">
        <source></source>
        <translation>移除…</translation>
    </message>
    <message id="9407s">
        <source></source>
        <translation>语言</translation>
    </message>
    <message id="9408s">
        <source></source>
        <translation>声音输出</translation>
    </message>
    <message id="9409s">
        <source></source>
        <translation>内置合成器</translation>
    </message>
    <message id="9410s">
        <source></source>
        <translation>%1（未连接）</translation>
    </message>
    <message id="9411s">
        <source></source>
        <translation>测试声音</translation>
    </message>
    <message id="9412s">
        <source></source>
        <translation>选择 SoundFont…</translation>
    </message>
    <message id="9413s">
        <source></source>
        <translation>系统的 SoundFont</translation>
    </message>
    <message id="9414s">
        <source></source>
        <translation>SoundFont：%1</translation>
    </message>
    <message id="9415s">
        <source></source>
        <translation>使用系统的 SoundFont 发声。</translation>
    </message>
    <message id="9416s">
        <source></source>
        <translation>%1 未连接，现由内置合成器代替发声。</translation>
    </message>
    <message id="9417s">
        <source></source>
        <translation>正在播放和弦…</translation>
    </message>
    <message id="9418s">
        <source></source>
        <translation>声音测试会播放一个和弦，并说明结果如何。</translation>
    </message>
    <message id="9419s">
        <source></source>
        <translation>日志</translation>
    </message>
    <message id="9420s">
        <source></source>
        <translation>退出</translation>
    </message>
    <message id="9421s">
        <source></source>
        <translation>帮助</translation>
    </message>
    <message id="9422s">
        <source></source>
        <translation>正在启动…</translation>
    </message>
    <message id="9423s">
        <source></source>
        <translation>添加用户</translation>
    </message>
    <message id="9424s">
        <source></source>
        <translation>更改用户</translation>
    </message>
    <message id="9425s">
        <source></source>
        <translation>姓</translation>
    </message>
    <message id="9426s">
        <source></source>
        <translation>名</translation>
    </message>
    <message id="9427s">
        <source></source>
        <translation>学号</translation>
    </message>
    <message id="9428s">
        <source></source>
        <translation>取消</translation>
    </message>
    <message id="9429s">
        <source></source>
        <translation>要从列表中移除 %1 吗？已保存的训练会保留：以此学号重新添加的人可以继续这些训练。</translation>
    </message>
    <message id="9430s">
        <source></source>
        <translation>SoundFont %1 不存在，现由系统的 SoundFont 代替发声。</translation>
    </message>
    <message id="9431s">
        <source></source>
        <translation>请输入学号：训练将保存在该学号下。</translation>
    </message>
    <message id="9432s">
        <source></source>
        <translation>学号太长，最多 %1 个字符。</translation>
    </message>
    <message id="9433s">
        <source></source>
        <translation>姓名太长，姓和名各最多 %1 个字符。</translation>
    </message>
    <message id="9434s">
        <source></source>
        <translation>“%1”不能用作学号。请选择其他学号。</translation>
    </message>
    <message id="9435s">
        <source></source>
        <translation>学号 %1 已在列表中。请选择该用户，或输入其他学号。</translation>
    </message>
    <message id="9436s">
        <source></source>
        <translation>文件 %1 不是可以播放的 SoundFont，或已损坏。SoundFont 保持不变。</translation>
    </message>
    <message id="9437s">
        <source></source>
        <translation>选择 SoundFont</translation>
    </message>
    <message id="9441s">
        <source></source>
        <translation>程序未输出任何声音。</translation>
    </message>
    <message id="9442s">
        <source></source>
        <translation>和弦已从程序输出：内置合成器通过 %2、使用 SoundFont %3 播放了 %1 个音。</translation>
    </message>
    <message id="9443s">
        <source></source>
        <translation>和弦已从程序输出：内置合成器通过 %1、使用 SoundFont %2 播放，电平为 %3 %。</translation>
    </message>
    <message id="9444s">
        <source></source>
        <translation>如果仍听不到声音：请打开扬声器或耳机，调高音量，并在系统的声音设置中选中它们。</translation>
    </message>
    <message id="9445s">
        <source></source>
        <translation>合成器未能及时就绪：计算机非常繁忙，或 SoundFont 非常大。请重试。</translation>
    </message>
    <message id="9446s">
        <source></source>
        <translation>%1 已打开，但未接受声音。可能有其他程序占用了声卡：请关闭该程序，或在系统的声音设置中选择其他输出。</translation>
    </message>
    <message id="9447s">
        <source></source>
        <translation>SoundFont %1 没有钢琴音色。请选择其他 SoundFont。</translation>
    </message>
    <message id="9448s">
        <source></source>
        <translation>和弦已从程序输出：MIDI 设备“%1”已无误地接收了 %2 条消息。</translation>
    </message>
    <message id="9449s">
        <source></source>
        <translation>如果仍听不到声音：请检查设备是否已开启、音量是否足够，以及它是否播放通道 1 收到的内容。</translation>
    </message>
    <message id="9450s">
        <source></source>
        <translation>无法连接 MIDI 设备“%1”。请检查连接线以及设备是否已开启，或选择其他输出。</translation>
    </message>
    <message id="9451s">
        <source></source>
        <translation>练习意外结束。此前保存的内容仍在。要查看日志的末尾吗？</translation>
    </message>
    <message id="9452s">
        <source></source>
        <translation>练习已经打开。点击“确定”后，其窗口将置于最前。</translation>
    </message>
    <message id="9453s">
        <source></source>
        <translation>无法启动练习（%1）。请重新安装程序；如果仍无法解决，请发送日志中的错误报告。</translation>
    </message>
    <message id="9455s">
        <source></source>
        <translation>时间</translation>
    </message>
    <message id="9456s">
        <source></source>
        <translation>位置</translation>
    </message>
    <message id="9457s">
        <source></source>
        <translation>编号</translation>
    </message>
    <message id="9458s">
        <source></source>
        <translation>内容</translation>
    </message>
    <message id="9459s">
        <source></source>
        <translation>来源</translation>
    </message>
    <message id="9460s">
        <source></source>
        <translation>刷新</translation>
    </message>
    <message id="9461s">
        <source></source>
        <translation>复制为错误报告</translation>
    </message>
    <message id="9462s">
        <source></source>
        <translation>关闭</translation>
    </message>
    <message id="9463s">
        <source></source>
        <translation>报告已复制到剪贴板，可以粘贴到邮件中。</translation>
    </message>
    <message id="9464s">
        <source></source>
        <translation>日志为空。</translation>
    </message>
    <message id="9467s">
        <source></source>
        <translation>发生了程序未预料到的错误（%1）。该错误已记入日志，您可以继续。请发送日志中的错误报告。</translation>
    </message>
    <message id="9502s">
        <source></source>
        <translation>测验尚未结束。要放弃测验（不显示结果）吗？</translation>
    </message>
    <message id="9531s">
        <source></source>
        <translation>正在准备声音……</translation>
    </message>
    <message id="9532s">
        <source></source>
        <translation>无法播放：声音输出尚未就绪。请检查扬声器、耳机或 MIDI 设备，然后重试。本次不计入成绩。</translation>
    </message>
    <message id="9551s">
        <source></source>
        <translation>选择和弦音数</translation>
    </message>
    <message id="9552s">
        <source></source>
        <translation>已选的和弦音数</translation>
    </message>
    <message id="9553s">
        <source></source>
        <translation>选择和弦类别</translation>
    </message>
    <message id="9554s">
        <source></source>
        <translation>已选的和弦类别</translation>
    </message>
    <message id="9555s">
        <source></source>
        <translation>练习模式“%1”固定了下列设置，它们保持不变：</translation>
    </message>
    <message id="9560s">
        <source></source>
        <translation>和弦：%1</translation>
    </message>
    <message id="9561s">
        <source></source>
        <translation>和弦：%2 个中随机抽取 %1 个</translation>
    </message>
    <message id="9562s">
        <source></source>
        <translation>题目：%1，最多 %2 分钟</translation>
    </message>
    <message id="9563s">
        <source></source>
        <translation>还需选择：和弦音数（至少 1 项）</translation>
    </message>
    <message id="9564s">
        <source></source>
        <translation>还需选择：和弦类别（已选 %1，至少 %2 项）</translation>
    </message>
    <message id="9565s">
        <source></source>
        <translation>试听：选择完整后可用</translation>
    </message>
    <message id="9566s">
        <source></source>
        <translation>试听：仅在用 » 选择全部类别后可用</translation>
    </message>
    <message id="9567s">
        <source></source>
        <translation>正在试听：“确定”和“试听”须待播放结束</translation>
    </message>
    <message id="9601s">
        <source></source>
        <translation>读入测验</translation>
    </message>
    <message id="9602s">
        <source></source>
        <translation>保存设置</translation>
    </message>
    <message id="9603s">
        <source></source>
        <translation>姓：</translation>
    </message>
    <message id="9604s">
        <source></source>
        <translation>名：</translation>
    </message>
    <message id="9605s">
        <source></source>
        <translation>学号：</translation>
    </message>
    <message id="9606s">
        <source></source>
        <translation>考试</translation>
    </message>
    <message id="9611s">
        <source></source>
        <translation>文件或其所在文件夹不存在。</translation>
    </message>
    <message id="9612s">
        <source></source>
        <translation>没有访问该文件的权限。</translation>
    </message>
    <message id="9613s">
        <source></source>
        <translation>这是文件夹，不是文件。</translation>
    </message>
    <message id="9614s">
        <source></source>
        <translation>磁盘已满。</translation>
    </message>
    <message id="9615s">
        <source></source>
        <translation>系统提示：%1。</translation>
    </message>
    <message id="9616s">
        <source></source>
        <translation>这不是可以读取的文件。</translation>
    </message>
    <message id="9617s">
        <source></source>
        <translation>文件过大，不是测验文件。</translation>
    </message>
    <message id="9618s">
        <source></source>
        <translation>测验过大，无法存入文件。</translation>
    </message>
    <message id="9619s">
        <source></source>
        <translation>有一个字符无法读取。</translation>
    </message>
    <message id="9620s">
        <source></source>
        <translation>文本不是格式正确的 XML。</translation>
    </message>
    <message id="9621s">
        <source></source>
        <translation>根元素不是“%1”。</translation>
    </message>
    <message id="9622s">
        <source></source>
        <translation>存在第二个根元素。</translation>
    </message>
    <message id="9623s">
        <source></source>
        <translation>“%1”中缺少元素“%2”。</translation>
    </message>
    <message id="9624s">
        <source></source>
        <translation>“%1”中缺少属性“%2”。</translation>
    </message>
    <message id="9625s">
        <source></source>
        <translation>“%1”中不是整数。</translation>
    </message>
    <message id="9631s">
        <source></source>
        <translation>本帮助页面为英文。</translation>
    </message>
    <message id="9633s">
        <source></source>
        <translation>……另有 %1 项</translation>
    </message>
    <message id="9634s">
        <source></source>
        <translation>无法显示此帮助页面：它太大或嵌套过深。</translation>
    </message>
    <message id="9635s">
        <source></source>
        <translation>存放已保存训练的文件夹名称 %1 不是 UTF-8，无法在那里保存。您可以练习，但现在保存的内容会在程序结束时丢失。请在 MELVADO_STORE 中指定其他位置。</translation>
    </message>
    <message id="9681s">
        <source></source>
        <translation>声位</translation>
    </message>
    <message id="9682s">
        <source></source>
        <translation>%1：待回答</translation>
    </message>
    <message id="9683s">
        <source></source>
        <translation>%1：正确，%2</translation>
    </message>
    <message id="9684s">
        <source></source>
        <translation>%1：错误，可再答</translation>
    </message>
    <message id="9685s">
        <source></source>
        <translation>%1：未答出，答案是 %2</translation>
    </message>
    <message id="9721s">
        <source></source>
        <translation>答案：%1</translation>
    </message>
    <message id="9722s">
        <source></source>
        <translation>第 %1 个和弦，共 %2 个</translation>
    </message>
    <message id="9723s">
        <source></source>
        <translation>请作答</translation>
    </message>
    <message id="9724s">
        <source></source>
        <translation>本题结束，答对 %1 个，共 %2 个</translation>
    </message>
    <message id="9726s">
        <source></source>
        <translation>训练结束：%1</translation>
    </message>
    <message id="9727s">
        <source></source>
        <translation>测验结束</translation>
    </message>
    <message id="9728s">
        <source></source>
        <translation>时间到</translation>
    </message>
    <message id="9731s">
        <source></source>
        <translation>%1：从“%2”移到“%3”</translation>
    </message>
    <message id="9732s">
        <source></source>
        <translation>全部从“%1”移到“%2”</translation>
    </message>
</context>
</TS>
