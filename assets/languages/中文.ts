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
        <translation>尚未为测验标记任何设置框。请右键单击要由测验规定设置的框，然后选择“Prüfung”。</translation>
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
        <translation>保存训练的文件 %1 已损坏，无法读取。该文件已改名为 %2 保留，并新建了一个空文件。如果您有该文件的备份，可以将其放回原处。</translation>
    </message>
    <message id="9107s">
        <source></source>
        <translation>一条已保存的记录（%1）已损坏，无法读取。该记录已改名为 %2 保留。设置将采用默认值；其他已保存的内容仍在。</translation>
    </message>
    <message id="9108s">
        <source></source>
        <translation>无法使用保存训练的服务器 %1（%2）。您可以练习，但现在保存的内容在程序退出后会丢失。请告知计算机管理人员，或稍后重新启动程序。</translation>
    </message>
    <message id="9109s">
        <source></source>
        <translation>目前无法读取 %1 中已保存的训练（%2）。没有任何内容被更改。您可以练习；如要继续已保存的训练，请稍后重新启动程序。</translation>
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
        <translation>音频输出已中断。请检查扬声器或耳机以及系统的声音设置。练习将继续；播放后面的和弦时会再次尝试发声。</translation>
    </message>
    <message id="9155s">
        <source></source>
        <translation>MIDI 设备“%1”已不可用。请检查连接线以及设备是否已开启；播放后面的和弦时会再次查找。练习将在无声状态下继续。</translation>
    </message>
    <message id="9156s">
        <source></source>
        <translation>编号为 %1 的 MIDI 设备不存在；现有 %2 台设备。请在 Melvado 中选择其他 MIDI 设备。练习将在无声状态下继续。</translation>
    </message>
    <message id="9201s">
        <source></source>
        <translation>无法将练习记录保存到文件夹 %1（%2），已改存为 %3。请检查该文件夹是否存在、您是否有写入权限，以及磁盘是否已满。</translation>
    </message>
    <message id="9202s">
        <source></source>
        <translation>无法保存练习记录：文件夹 %1（%2）和程序自身的文件夹都无法写入。请在下次练习前清理磁盘空间或检查该文件夹。</translation>
    </message>
    <message id="9251s">
        <source></source>
        <translation>无法读取语言文件 %1，已将其忽略。如果它是程序自带的，请重新安装程序。</translation>
    </message>
    <message id="9252s">
        <source></source>
        <translation>未找到本程序所用语言的文字，因此文字处显示为“VOID”。请重新安装程序，或以其他语言启动。</translation>
    </message>
</context>
</TS>
